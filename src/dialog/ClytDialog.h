// The dialog of a description. It starts from an empty template and, while its window initialises, reads the description
// in its fixed order into a sized window, live controls and rules. From then on it runs the dependency rules at each
// command, scans input into the controls and composes output from them.
//
// ReadDescription.cpp holds the construction, RunDependencies.cpp the rules, ComposeOutput.cpp the output, and
// ClytDialog.cpp the life of the window.
#pragma once

#include "dlgfile/ReadAll.h"
#include "model/ClytForm.h"

#include <afxwin.h>

#include <optional>
#include <utility>
#include <vector>

// 0 while a dialog creates its controls, then 1. A construction that fails in between leaves it at 0.
extern int lytControlsReady;
// 0 while a dialog scans its first input, then 1. A construction that fails in between leaves it at 0.
extern int lytInputApplied;

// The statement at which an input part begins.
inline constexpr const char* lytStartName = "Start";

using ClytOutputMap = CTypedPtrMap<CMapStringToPtr, CString, ClytOutput*>;
using ClytInputMap = CTypedPtrMap<CMapStringToPtr, CString, ClytInputPart*>;

class ClytDialog : public CDialog, public ClytForm
{
public:
    // Opens nothing: the work happens inside DoModal, which gives 1 (OK), 2 (Cancel) or 3 (the construction failed, and
    // a message was shown). There is a result only after 1.
    ClytDialog(CString descriptionFile, const CString& defineList);

    // Shows the dialog of that name from the dialog folder, with an input text. Returns its result when the user
    // confirmed it.
    static std::optional<CString> Show(const CString& description, const CString& input);
    // The same for a dialog that has been made. The input key is left as the dialog leaves it.
    std::optional<CString> Ask(const CString& input);
    INT_PTR DoModal() override;
    CDialog& GetWindow() override { return *this; }
    CString GetTextSection() const override;
    const CString& GetResult() const { return result; }
    const ClytControlList& GetControlList() const override { return controlList; }
    const ClytOutputMap& GetOutputMap() const { return outputMap; }
    const ClytInputMap& GetInputMap() const { return inputMap; }
    ClytControl* FindControl(const CString& name) const override;
    // How far the description has been read: its last line, once all of it has.
    const ClytSpan& GetReadPlace() const { return file.GetLinePlace(); }

    // One pass over the rules. A failure is raised.
    virtual void RunDependencies();
    bool RunRules() override;
    void Report(const ClytControl& control, const char* number, const ClytPrefix& prefix,
                const CString& argument) override;

    // Scans lytInputKey into the controls, empties it and takes the baseline of every control.
    void ApplyInput(const CString& partName);
    int RunInput(const CString& partName, const CString& text) override;

    // The first rule of the group whose conditions all hold, or null. A condition on an unknown control raises 245.
    [[nodiscard]] const ClytDialogOutput* SelectRule(const ClytOutput& group);
    // Composes the text of a group; with `check` the evaluations of the controls that it takes are run. 0, with the
    // target as it was, when no rule holds or an evaluation fails (its message is shown).
    [[nodiscard]] int ComposeOutput(const ClytOutput& group, CString& target, int check);
    int ComposeNamedOutput(const CString& groupName, CString& target) override;
    // Puts the items into the format. A format without `%` is the result itself.
    static CString FormatOutput(const CString& format, const CStringArray& items);
    // Turns `\n` and `\t` into a line feed or a tab and a blank, except at the very end of the text.
    static void ExpandEscapes(CString& text);

    // Return and the OK button. The dialog stays open when a default-button rule has the key, when no output rule
    // holds, and when an evaluation refuses.
    void OnOK() override;
    std::optional<CString> ShowNested(const CString& description, const CString& input) override;

protected:
    BOOL OnInitDialog() override;
    // Every command runs the rules first, so that a control's own handler sees what they made of its change.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    // A statement of the layout has made a control.
    virtual void ControlMade(const ClytControl& /*control*/, const ClytControlStatement& /*statement*/) {}
    // Shows why the construction failed.
    virtual void ShowFailure(CException& failure) { failure.ReportError(); }
    void OnCommandBegun() override;
    void OnCancel() override;
    afx_msg void OnDestroy();

    // Reads the description, creates the controls, scans the input and runs the rules once. Any failure is raised.
    void ReadDescription();
    // False after the message of a failure was shown.
    bool TryReadDescription();
    // The rule that gives Return in the named control to a button, or null. An empty name means a window that
    // is not a control.
    const ClytControlDep* FindDefaultButtonRule(const CString& focusName) const;
    // What OK does before the window ends: composes the result, with evaluations. 0 when the dialog is to stay open. A
    // failure of the program's own is raised again as 246.
    [[nodiscard]] int ComposeResult();

    DECLARE_MESSAGE_MAP()

private:
    class Reading;
    class Run;

    void OpenFile();
    void CloseFile();
    void CollectBaselineControls();
    void CreateControlWindows();
    static void TakeScale();
    // Restores the place in the catalogue from before the last confirmation.
    static void RestoreTree();
    // Sizes the window so that its client area has the scaled size.
    void Resize(int width, int height);
    // Of the control that has the focus.
    static CString FocusName();

    // False when a command that arrives now must not run the rules: while windows are created or the first input is
    // scanned, while a failure of the rules is shown, when a value that the innermost run reads moved the focus, and when
    // runs are nested too deep. In the last case the innermost run repeats the one that it refuses.
    [[nodiscard]] bool CommandRunsRules();
    // Called where a failure of the rules was caught: reports it, once for each command of the user.
    void TellRuleFailure() noexcept;
    void RunPasses();
    // Nothing is done for a rule that has failed since the command of the user began. A failure is raised.
    void TryRule(ClytControlDep& rule);
    void RunRule(ClytControlDep& rule);
    static void RunEventRule(ClytControlDep& rule);
    // Runs an input part, from its statement "Start".
    void Scan(const ClytInputPart& part, const CString& text);
    // Takes the present values of the controls that an event rule compares as the ones to compare with.
    void SaveBaseline();
    int AllConditionsHold(const ClytControlDep& rule);
    bool HoldsForOutput(const ClytDialogOutput& rule);
    // The text that an item's control gives.
    CString TakeItem(const ClytOutputItem& item);

    ClytDialogFile file;
    ClytControlMap controlMap;
    ClytOwnedList<ClytControlDep> dependencyList;
    std::vector<ClytControl*> baselineControls; // of the event rules' conditions, each once
    ClytOutputMap outputMap;
    ClytOwnedList<ClytOutput> outputList;
    ClytInputMap inputMap;
    ClytOwnedList<ClytInputPart> inputList;
    CStringList sectionList; // the words of the layout header, the text section first
    CString result;
    CString fileName;
    // The outcome of the rules since the latest command of the user.
    struct Command
    {
        int number = 0;
        int repeatedRuns = 0;
        bool hasFailed = false;
        bool isTold = false;                                             // a failure or a report of the rules
        std::vector<std::pair<const ClytControl*, CString>> scanReports; // numbers and arguments
    };
    Command command;
    Run* innermostRun = nullptr; // on the stack of RunPasses
    int readDepth = 0;           // reads of a control's value in progress
    int scanDepth = 0;           // scans in progress
    bool isOver = false;         // no rules run again: the construction failed, or the window is being destroyed
    // In layout order. The last member, since controls may look at all others while they are destroyed.
    ClytControlList controlList;
};
