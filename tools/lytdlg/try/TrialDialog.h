// A described dialog as the library runs it, which reports its outcome to a watcher.
#pragma once

#include "dialog/ClytDialog.h"

#include <map>
#include <string>

namespace lytdlg
{

class TrialDialog;

class TrialWatcher
{
public:
    // A dialog is about to be opened, and is gone; one inside the other.
    virtual void Opening(TrialDialog& dialog) = 0;
    virtual void Closed(TrialDialog& dialog, INT_PTR result) = 0;
    // The construction failed; the user sees the message next.
    virtual void Failed(const TrialDialog& dialog, const CException& failure) = 0;

protected:
    ~TrialWatcher() = default;
};

class TrialDialog : public ClytDialog
{
public:
    // The watcher outlives the dialog.
    TrialDialog(const CString& descriptionFile, const CString& defines, TrialWatcher& dialogWatcher);

    // The watcher is called before and after.
    INT_PTR DoModal() override;
    std::optional<CString> ShowNested(const CString& description, const CString& input) override;

    const std::string& DescriptionFile() const { return m_file; }
    // The type word of a control.
    const std::string& TypeOf(const ClytControl& control) const { return m_types.at(&control); }
    // The name in the layout, which OK and Cancel do not know themselves.
    const std::string& NameOf(const ClytControl& control) const { return m_names.at(&control); }
    // The line of its statement.
    int LineOf(const ClytControl& control) const { return m_lines.at(&control); }
    // Between the last act and the end of the window.
    bool IsEnding() const { return m_isEnding; }
    // Ends the dialog without a result, as closing it does, but without the effects on rules and tree.
    void Leave();

protected:
    void ControlMade(const ClytControl& control, const ClytControlStatement& statement) override;
    void ShowFailure(CException& failure) override;

private:
    std::string m_file;
    TrialWatcher& m_watcher;
    std::map<const ClytControl*, std::string> m_types;
    std::map<const ClytControl*, std::string> m_names;
    std::map<const ClytControl*, int> m_lines;
    bool m_isEnding = false;
};

} // namespace lytdlg
