// A described dialog without a window: the engine with stand-in controls. Tests, tools and fuzzers read a description
// into it, enter what a user would enter, run the rules and compose the result.
#pragma once

#include "dialog/ClytDialogRules.h"
#include "support/HeadlessControls.h"

class HeadlessForm : public ClytDialogRules
{
public:
    explicit HeadlessForm(const CString& descriptionFile, const CString& defines = CString());

    // Reads the description; a failure is raised.
    void Construct() { ReadDescription(); }
    // The same as a dialog does it: true, or false after a failure's message was shown.
    bool Open();
    // A command reaches the dialog, as one does with every change.
    void Command();
    // The focus moves, which sends a command.
    void MoveFocusTo(const CString& controlName);
    // The user enters something into a control; false when there is none of that name.
    bool Enter(const CString& controlName, const CString& input);
    // OK: true when the result stands. A failure is raised.
    bool Confirm() { return ComposeResult() != 0; }

    // Null when there is no control of that name.
    HeadlessControl* Control(const CString& name) const { return dynamic_cast<HeadlessControl*>(FindControl(name)); }
    // What is seen of a control; an unknown one has the value "?", is disabled and hidden.
    std::string Value(const CString& name) const;
    bool IsEnabled(const CString& name) const;
    bool IsShown(const CString& name) const;
    // The name of the button that Return presses in the named control; empty when it confirms.
    std::string DefaultButtonFor(const CString& name) const;

    int width = 0;
    int height = 0;
    CString caption;
    CString focus;      // the name of the control that has it
    int runCount = 0;   // how many commands ran the rules
    int deepestRun = 0; // how many of them stood one inside the other at most

    CWnd& GetWindow() override { AfxThrowInvalidArgException(); }
    void OnOK() override { Confirm(); }
    std::optional<CString> ShowNested(const CString& /*descriptionFile*/) override { return {}; }

protected:
    void SizeWindow(int windowWidth, int windowHeight, const CString& windowCaption) override;
    std::unique_ptr<ClytControl> MakeControl(const CString& type, const CString& name, ClytPosition position,
                                             ClytSize size, const CString& label) override;
    void CreateControlWindow(ClytControl& control) override { control.CreateControl(nullptr); }

private:
    HeadlessOptionGroup* openGroup = nullptr; // the form's
    int openRuns = 0;
};
