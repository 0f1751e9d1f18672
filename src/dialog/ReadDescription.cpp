// The construction of a dialog: each statement of its description is turned into a control or a rule as it is read.
#include "dialog/ClytDialog.h"

#include "controls/ClytControlTypes.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "model/ClytObserver.h"
#include "model/ClytScale.h"

#include <set>

// Turns the statements into the records of the dialog.
class ClytDialog::Reading : public ClytDescriptionVisitor
{
public:
    explicit Reading(ClytDialog& owner) : dialog(owner) {}

    void LinesBegin(ClytLineKind kind)
    {
        if (kind == ClytLineKind::Output)
            groupHeader = dialog.file.GetStatementPlace();
    }
    void LayoutHeader(const CString& /*version*/, CStringList& words)
    {
        while (!words.IsEmpty())
            dialog.sectionList.AddTail(words.RemoveHead());
    }
    void DialogHeader(bool isRead, int width, int height, const CString& title, const CString& /*lastText*/);
    void Control(const ClytControlStatement& statement);
    void Value(const CString& name, const CString& keyword, const CStringList& values);
    void Dependency(std::unique_ptr<ClytControlDep>& rule);
    void EvaluationHeader(const CStringList& words);
    void Evaluation(ClytControlEval& statement);
    void InputPart(const CString& name, std::unique_ptr<ClytInputPart>& part);
    void Output(const CString& nextName, std::unique_ptr<ClytDialogOutput>& rule);
    // A group is stored under its name when the next header or the end comes. A header that is the last line thus gives
    // the group before it a second name.
    void StoreGroup()
    {
        if (group != nullptr)
            dialog.outputMap.SetAt(groupName, group);
    }

private:
    // The text of a key in the first of the text sections, and nothing without a key or a section.
    CString TextOf(const CString& key, const CString& argument = CString()) const
    {
        const bool isKey = !key.IsEmpty() && !dialog.sectionList.IsEmpty();
        return isKey ? lytEnvironment.GetText(dialog.GetTextSection(), key, argument) : CString();
    }

    ClytDialog& dialog;
    // One NUL, so a label with an apostrophe is shown up to and including it.
    const CString labelArgument = CString('\0');
    ClytOutput* group = nullptr; // owned by the dialog
    CString groupName = lytParentName;
    ClytSpan groupHeader;
    bool isGroupDue = true;
};

void ClytDialog::ReadDescription()
{
    const ClytCounted inCommand = BeginCommand();
    OpenFile();
    Reading reading(*this);
    lytReadAll(file, reading);
    reading.StoreGroup();
    lytInputApplied = 0;
    ApplyInput(lytParentName);
    lytInputApplied = 1;
    RunDependencies();
    CloseFile();
}

void ClytDialog::OpenFile()
{
    if (file.Open(fileName, CFile::modeRead) == 0)
        lytRaise(lytError("OpeningFailed"), CString(), fileName);
}

void ClytDialog::CloseFile()
{
    try
    {
        file.Close();
    }
    catch (CException* e)
    {
        const ClytCaught failure(e);
        lytRaise(lytError("ClosingFailed"), CString(), fileName);
    }
}

void ClytDialog::Reading::DialogHeader(bool isRead, int width, int height, const CString& title,
                                       const CString& /*lastText*/)
{
    if (!isRead)
        lytRaise(lytError("DialogForm"));
    const CString windowCaption = TextOf(title);
    dialog.Resize(width, height);
    dialog.SetWindowText(windowCaption);
    dialog.CenterWindow();
}

void ClytDialog::Reading::Control(const ClytControlStatement& statement)
{
    if (statement.type.IsEmpty())
        return;
    const CString label = TextOf(statement.text, labelArgument);
    auto made = lytMakeControl({statement.type,
                                statement.name,
                                {lytScaled(statement.x, lytScaleX), lytScaled(statement.y, lytScaleY)},
                                {lytScaled(statement.width, lytScaleX), lytScaled(statement.height, lytScaleY)},
                                label});
    if (made == nullptr)
    {
        lytTell(&ClytObserver::PassedOver, ClytPassedOver::LayoutStatement, statement.type, statement.span);
        return;
    }
    ClytControl& control = dialog.controlList.AddTail(std::move(made));
    dialog.controlMap.SetAt(statement.name, &control);
    dialog.ControlMade(control, statement);
}

void ClytDialog::Reading::Value(const CString& name, const CString& keyword, const CStringList& values)
{
    // A line without a statement has an empty name, which is that of the last nameless control.
    if (values.IsEmpty())
        return;
    if (ClytControl* control = dialog.FindControl(name))
        control->TakeStatement(values, keyword, dialog.file.GetStatementPlace());
    else
        lytTell(&ClytObserver::PassedOver, ClytPassedOver::ValueStatement, name, dialog.file.GetStatementPlace());
}

// A rule that names an unknown control is not stored, and what was read of it stays: the next stored rule inherits its
// conditions. Descriptions in use rely on that.
void ClytDialog::Reading::Dependency(std::unique_ptr<ClytControlDep>& rule)
{
    if (rule->controlName.IsEmpty())
        return;
    if (dialog.FindControl(rule->controlName) != nullptr)
        dialog.dependencyList.AddTail(std::move(rule)).Bind(dialog.controlMap);
    // The name stays in the record, so an empty line that follows finds it again.
    else if (rule->span.line == dialog.file.GetLinePlace().line)
        lytTell(&ClytObserver::PassedOver, ClytPassedOver::DependencyRule, rule->controlName, rule->span);
}

// Other rules never ask whether a control changed, and many rules ask the same control.
void ClytDialog::CollectBaselineControls()
{
    std::set<const ClytControl*> collected;
    for (const ClytControlDep& rule : dependencyList)
    {
        if (!rule.IsEventRule())
            continue;
        for (const ClytCtrlValList& condition : rule.conditions)
        {
            ClytControl* control = condition.GetControl();
            if (control != nullptr && collected.insert(control).second)
                baselineControls.push_back(control);
        }
    }
}

// The windows are created here, and not as their statements are read, so that what they send runs no rules.
void ClytDialog::CreateControlWindows()
{
    lytControlsReady = 0;
    for (ClytControl& control : controlList)
        control.CreateControl(this);
    lytControlsReady = 1;
}

void ClytDialog::Reading::EvaluationHeader(const CStringList& words)
{
    dialog.CollectBaselineControls();
    dialog.CreateControlWindows();
    if (words.IsEmpty())
        lytRaise(lytError("HeaderForm"));
}

void ClytDialog::Reading::Evaluation(ClytControlEval& statement)
{
    const ClytCtrlValList& own = statement.ownValues;
    if (own.GetValues().IsEmpty())
        return;
    statement.otherValues.Bind(dialog.controlMap);
    if (ClytControl* control = dialog.FindControl(own.GetName()))
        control->SetEvaluation(own, statement.otherValues, statement.messageKey);
    else
        lytTell(&ClytObserver::PassedOver, ClytPassedOver::Evaluation, own.GetName(), own.GetSpan());
}

void ClytDialog::Reading::InputPart(const CString& name, std::unique_ptr<ClytInputPart>& part)
{
    part->Bind(dialog.controlMap);
    dialog.inputMap.SetAt(name, part.get());
    dialog.inputList.AddTail(std::move(part));
}

// What a rule without a format holds goes to the next one, even across a header.
void ClytDialog::Reading::Output(const CString& nextName, std::unique_ptr<ClytDialogOutput>& rule)
{
    if (nextName.IsEmpty() && rule->format.IsEmpty())
        return;
    if (isGroupDue)
    {
        group = &dialog.outputList.AddTail(std::make_unique<ClytOutput>());
        group->span = groupHeader;
    }
    isGroupDue = !nextName.IsEmpty();
    if (isGroupDue)
    {
        StoreGroup();
        groupName = nextName;
        groupHeader = dialog.file.GetStatementPlace();
    }
    else
        group->rules.AddTail(std::move(rule)).Bind(dialog.controlMap);
}
