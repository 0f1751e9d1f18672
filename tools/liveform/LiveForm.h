// A described dialog on a separate window, without a modal run: its controls are those that ship, over windows of the
// platform or in memory. Tests and fuzzers read a description into it, do what a user would do, and look at the result.
#pragma once

#include "dialog/ClytDialog.h"

#include <string>

class LiveForm : public ClytDialog
{
public:
    explicit LiveForm(const CString& descriptionFile, const CString& defines = CString());
    ~LiveForm() override;

    // Reads the description and shows the window, which does not become the active one. A failure is raised.
    void Construct();
    // The same as a modal run does it: true, or false after a failure's message was shown.
    bool Open();
    // A command reaches the dialog, as one does with every change.
    void Command() const;
    // The user moves the focus to a control.
    void MoveFocusTo(const CString& controlName) const;
    // The user enters a value: types it into a field, chooses the item or the option that has it, checks or unchecks a
    // box. A button is pressed. False when no control of that name can be reached.
    bool Enter(const CString& controlName, const CString& input);
    bool Enter(ClytControl& control, const CString& input);
    // OK without the end of the dialog: true when there is a result. A failure is raised.
    bool Confirm() { return ComposeResult() != 0; }

    // The window of a control; null when no control has that name.
    CWnd* Window(const CString& name) const { return dynamic_cast<CWnd*>(FindControl(name)); }
    // What is seen of a control; an unknown one has the value "?", is disabled and hidden.
    std::string Value(const CString& name) const;
    bool IsEnabled(const CString& name) const;
    bool IsShown(const CString& name) const;
    // The name of the control that has the focus; empty when none has it.
    std::string Focus() const;
    // The name of the button that Return presses in the named control; empty when it confirms.
    std::string DefaultButtonFor(const CString& name) const;

    int runCount = 0;   // runs of the rules since the construction
    int deepestRun = 0; // how many of them were one inside the other at most

    void RunDependencies() override;
    // Only a modal run shows a nested dialog.
    std::optional<CString> ShowNested(const CString& /*description*/, const CString& /*input*/) override { return {}; }

private:
    int m_openRuns = 0;
};

std::string WindowText(const CWnd& window);
