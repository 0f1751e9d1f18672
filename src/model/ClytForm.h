// A dialog as its controls see it.
#pragma once

#include "base/ClytCounted.h"
#include "environment/ClytException.h"
#include "model/ClytControl.h"

#include <optional>

class CDialog;

using ClytControlList = ClytOwnedList<ClytControl, CPtrList>;

class ClytForm
{
public:
    // The parent of the controls' windows; they take its font.
    virtual CDialog& GetWindow() = 0;
    // The section of the language texts in which captions are keys; empty when the layout names none.
    virtual CString GetTextSection() const = 0;
    // Null for an unknown name.
    virtual ClytControl* FindControl(const CString& name) const = 0;
    // In layout order.
    virtual const ClytControlList& GetControlList() const = 0;
    // Composes the text of an output group, without evaluations; 0, with the target as it was, when there is no such
    // group or no rule of it holds.
    virtual int ComposeNamedOutput(const CString& groupName, CString& target) = 0;
    // Runs an input part over a text, from its statement "Start"; 0 when there is no such part.
    virtual int RunInput(const CString& partName, const CString& text) = 0;
    // One pass over the dependency rules in file order, then a new baseline for the controls of their conditions. False
    // when a rule has failed since the command of the user began; the failure has then been reported once.
    virtual bool RunRules() = 0;
    // Commands that arrive while the result lives run no rules.
    [[nodiscard]] ClytCounted PauseRules() { return ClytCounted(pausedRules); }
    // What happens while the result lives belongs to one command of the user.
    [[nodiscard]] ClytCounted BeginCommand()
    {
        if (openCommands == 0)
            OnCommandBegun();
        return ClytCounted(openCommands);
    }
    // Shows a numbered error of a control. For one command of the user the rules show one message, whether they failed or
    // not, and a scan shows the same message of a control once: both may reach the same place many times.
    virtual void Report(const ClytControl& control, const char* number, const ClytPrefix& prefix,
                        const CString& argument) = 0;
    // What Return and the OK button do.
    virtual void OnOK() = 0;
    // Shows the dialog of a description of the dialog folder over this one, with an input to scan. Its result, or nothing
    // when it was not confirmed.
    virtual std::optional<CString> ShowNested(const CString& description, const CString& input) = 0;

protected:
    ~ClytForm() = default;
    // Called at the first message of a command.
    virtual void OnCommandBegun() = 0;

    int pausedRules = 0;  // above 0 while commands run no rules
    int openCommands = 0; // above 0 while a command of the user is carried out
};
