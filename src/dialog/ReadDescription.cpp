// The reading of a description: each section in its turn, each statement turned into a control or a rule at once.
#include "dialog/ClytDialog.h"

#include "controls/ClytControlTypes.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "model/ClytObserver.h"
#include "model/ClytScale.h"

#include <set>

void ClytDialog::ReadDescription()
{
    const ClytCounted inCommand = BeginCommand();
    OpenFile();
    ReadHeader();
    ReadControls();
    ReadValues();
    ReadDependencies();
    CreateControlWindows();
    ReadEvaluations();
    ReadInputs();
    ReadOutputGroups();
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

// The words of a section's header after the first.
void ClytDialog::TakeHeaderWords(CStringList& words)
{
    words.RemoveAll();
    if (file.TakeTokens(words) == 0)
        lytRaise(lytError("HeaderForm"));
    words.RemoveHead();
}

void ClytDialog::ReadHeader()
{
    CString version;
    file.ReadVersionHeader(version);
    TakeHeaderWords(sectionList);

    int width = 0;
    int height = 0;
    CString title;
    CString lastText;
    if (file.ReadDialogHeader(width, height, title, lastText) == 0)
        lytRaise(lytError("DialogForm"));
    const bool isKey = !title.IsEmpty() && !sectionList.IsEmpty();
    const CString windowCaption = isKey ? lytEnvironment.GetText(GetTextSection(), title) : CString();
    Resize(width, height);
    SetWindowText(windowCaption);
    CenterWindow();
}

void ClytDialog::ReadControls()
{
    ClytControlStatement statement;
    while (file.ReadControlStatement(statement) != 0)
    {
        if (!statement.type.IsEmpty())
            CreateLayoutControl(statement);
    }
}

void ClytDialog::CreateLayoutControl(const ClytControlStatement& statement)
{
    // The argument is one NUL, so a label with an apostrophe is shown up to and including it.
    const bool isKey = !statement.text.IsEmpty() && !sectionList.IsEmpty();
    const CString label = isKey ? lytEnvironment.GetText(GetTextSection(), statement.text, CString('\0')) : CString();
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
    ClytControl& control = controlList.AddTail(std::move(made));
    controlMap.SetAt(statement.name, &control);
    ControlMade(control, statement);
}

void ClytDialog::ReadValues()
{
    CString name;
    CString keyword;
    CStringList values;
    while (file.ReadValueStatement(name, keyword, values) != 0)
    {
        ClytControl* control = FindControl(name);
        // A line without a statement has an empty name, which is that of the last nameless control.
        if (values.IsEmpty())
            continue;
        if (control != nullptr)
            control->TakeStatement(values, keyword, file.GetStatementPlace());
        else
            lytTell(&ClytObserver::PassedOver, ClytPassedOver::ValueStatement, name, file.GetStatementPlace());
    }
}

// A rule that names an unknown control is not stored, and what was read of it stays: the next stored rule inherits its
// conditions. Descriptions in use rely on that.
void ClytDialog::ReadDependencies()
{
    auto rule = std::make_unique<ClytControlDep>();
    while (file.ReadDependencyStatement(*rule) == 1)
    {
        if (rule->controlName.IsEmpty())
            continue;
        if (FindControl(rule->controlName) == nullptr)
        {
            // The name stays in the record, so an empty line that follows finds it again.
            if (rule->span.line == file.GetLinePlace().line)
                lytTell(&ClytObserver::PassedOver, ClytPassedOver::DependencyRule, rule->controlName, rule->span);
            continue;
        }
        dependencyList.AddTail(std::move(rule)).Bind(controlMap);
        rule = std::make_unique<ClytControlDep>();
    }
    CollectBaselineControls();
}

// Other rules never ask whether a control changed, and many rules ask the same control.
void ClytDialog::CollectBaselineControls()
{
    std::set<const ClytControl*> collected;
    for (POSITION place = dependencyList.GetHeadPosition(); place != nullptr;)
    {
        const ClytControlDep& rule = *dependencyList.GetNext(place);
        for (POSITION at = rule.IsEventRule() ? rule.conditions.GetHeadPosition() : nullptr; at != nullptr;)
        {
            ClytControl* control = rule.conditions.GetNext(at)->GetControl();
            if (control != nullptr && collected.insert(control).second)
                baselineControls.push_back(control);
        }
    }
}

// The windows come into being here, and not as their statements are read, so that what they send runs no rules.
void ClytDialog::CreateControlWindows()
{
    lytControlsReady = 0;
    for (POSITION place = controlList.GetHeadPosition(); place != nullptr;)
        controlList.GetNext(place)->CreateControl(this);
    lytControlsReady = 1;
}

void ClytDialog::ReadEvaluations()
{
    CStringList words;
    TakeHeaderWords(words);
    if (words.IsEmpty())
        lytRaise(lytError("HeaderForm"));

    while (true)
    {
        ClytCtrlValList own;
        ClytCtrlValList other;
        CString messageKey;
        if (file.ReadEvaluationStatement(own, other, messageKey) == 0)
            return;
        ClytControl* control = FindControl(own.GetName());
        if (own.GetValues().IsEmpty())
            continue;
        other.Bind(controlMap);
        if (control != nullptr)
            control->SetEvaluation(own, other, messageKey);
        else
            lytTell(&ClytObserver::PassedOver, ClytPassedOver::Evaluation, own.GetName(), own.GetSpan());
    }
}

void ClytDialog::ReadInputs()
{
    CString name;
    while (file.ReadInputHeader(name) != 0)
    {
        ClytInputPart& part = inputList.AddTail(std::make_unique<ClytInputPart>());
        inputMap.SetAt(name.IsEmpty() ? CString(lytParentName) : name, &part);
        file.ReadInputPart(part);
        part.Bind(controlMap);
    }
}

// A group is stored under its name when the next header or the end comes. A header that is the last line thus gives the
// group before it a second name, and what a rule without a format holds goes to the next one, even across a header.
void ClytDialog::ReadOutputGroups()
{
    CString name = lytParentName;
    ClytSpan header = file.GetStatementPlace();
    CString nextName;
    auto rule = std::make_unique<ClytDialogOutput>();
    ClytOutput* group = nullptr;
    bool isGroupDue = true;
    while (file.ReadOutputStatement(nextName, *rule) != 0)
    {
        if (nextName.IsEmpty() && rule->format.IsEmpty())
            continue;
        if (isGroupDue)
        {
            group = &outputList.AddTail(std::make_unique<ClytOutput>());
            group->span = header;
        }
        isGroupDue = !nextName.IsEmpty();
        if (isGroupDue)
        {
            outputMap.SetAt(name, group);
            name = std::exchange(nextName, CString());
            header = file.GetStatementPlace();
        }
        else
        {
            group->rules.AddTail(std::move(rule)).Bind(controlMap);
            rule = std::make_unique<ClytDialogOutput>();
        }
    }
    if (group != nullptr)
        outputMap.SetAt(name, group);
}
