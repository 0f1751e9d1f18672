// The actions of the push button, one function for each word of the description language.
#include "controls/ClytPushButtonControl.h"

#include "base/ClytHandle.h"
#include "base/Words.h"
#include "controls/ClytDataLibrary.h"
#include "controls/ClytWaitCursor.h"
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "model/ClytObserver.h"

struct ClytPushButtonControl::Action
{
    ClytAction meaning;
    After (ClytPushButtonControl::*run)();
};

const ClytPushButtonControl::Action ClytPushButtonControl::actions[] = {
    {ClytAction::Visible, &ClytPushButtonControl::ToggleVisible},
    {ClytAction::Active, &ClytPushButtonControl::ToggleActive},
    {ClytAction::Add, &ClytPushButtonControl::AddShownText},
    {ClytAction::Delete, &ClytPushButtonControl::DeleteItem},
    {ClytAction::Up, &ClytPushButtonControl::MoveUp},
    {ClytAction::Down, &ClytPushButtonControl::MoveDown},
    {ClytAction::Action, &ClytPushButtonControl::CallFunction},
    {ClytAction::Reject, &ClytPushButtonControl::Reject},
    {ClytAction::Fill, &ClytPushButtonControl::Fill},
    {ClytAction::Dialog, &ClytPushButtonControl::OpenDialog},
};

namespace
{

HMODULE LoadOrFail(const CString& library)
{
    const HMODULE module = lytLoadLibrary(library);
    if (module == nullptr)
        lytRaise(lytError("LibraryMissing"), ClytPrefix(lytError("ActionFailed")), library);
    return module;
}

} // namespace

ClytPushButtonControl::After ClytPushButtonControl::RunAction()
{
    const auto meaning = lytMeaningOf<ClytAction>(action.GetKeyword());
    for (const Action& known : actions)
    {
        if (known.meaning == meaning)
            return (this->*known.run)();
    }
    return After::RunRules;
}

ClytPushButtonControl::After ClytPushButtonControl::ToggleVisible()
{
    if (ClytControl* target = Target())
        target->SetState(ClytState::Visible, target->IsVisible() != 0 ? 0 : 1);
    ToggleCaption();
    return After::RunRules;
}

ClytPushButtonControl::After ClytPushButtonControl::ToggleActive()
{
    if (ClytControl* target = Target())
        target->SetState(ClytState::Active, target->IsActive() != 0 ? 0 : 1);
    ToggleCaption();
    return After::RunRules;
}

ClytPushButtonControl::After ClytPushButtonControl::AddShownText()
{
    ClytControl* source = Target();
    ClytControl* target = Find(action.GetValues().GetTail());
    // The source is asked twice, as one with a side effect may notice.
    if (source != nullptr && target != nullptr && !source->GetDisplayValue().IsEmpty())
        target->AddItem(CString(), source->GetDisplayValue(), 0, 0);
    return After::RunRules;
}

ClytPushButtonControl::After ClytPushButtonControl::DeleteItem()
{
    ClytControl* target = Target();
    if (target != nullptr && target->DeleteCurrentItem() == 0)
        FocusNextControl();
    return After::RunRules;
}

ClytPushButtonControl::After ClytPushButtonControl::MoveUp()
{
    if (ClytControl* target = Target())
        target->MoveCurrentItem(1);
    return After::RunRules;
}

ClytPushButtonControl::After ClytPushButtonControl::MoveDown()
{
    if (ClytControl* target = Target())
        target->MoveCurrentItem(0);
    return After::RunRules;
}

// Calls a function of a library and scans its answer into the dialog. The answer counts only when the function was the
// tree browser of this library and the user confirmed it.
ClytPushButtonControl::After ClytPushButtonControl::CallFunction()
{
    const CString library = Value(0);
    const CString function = Value(1);
    const CString outputRule = Value(2);
    const CString inputRule = Value(3);

    // Loaded twice and freed once, the library stays for the next call; one without the function is not freed at all.
    LoadOrFail(library);
    lytSetCursor(IDC_WAIT);
    const HMODULE module = LoadOrFail(library);
    const ClytPartnerFunction<lytDataText> call(module, library, function);
    if (!call)
        lytRaise(lytError("FunctionMissing"), ClytPrefix::OfKey(lytError("ActionFailed")));
    const ClytModuleHandle second(module);

    CString answer;
    CString parameter;
    if (dialog->ComposeNamedOutput(outputRule, parameter) != 0)
        answer = lytCallForText(call, parameter);
    if (lytTreeResult == 1)
        lytInputKey = answer;
    else
        answer.Empty();
    if (!lytInputKey.IsEmpty())
        dialog->RunInput(inputRule, answer);
    return After::RunRules;
}

// Only the rules run.
ClytPushButtonControl::After ClytPushButtonControl::Reject()
{
    return After::RunRules;
}

ClytPushButtonControl::After ClytPushButtonControl::Fill()
{
    if (ClytControl* target = Target())
        target->FillByLibrary();
    return After::RunRules;
}

// Opens a dialog on top of this one. An output rule gives it its input, and an input rule takes its result.
ClytPushButtonControl::After ClytPushButtonControl::OpenDialog()
{
    lytSetCursor(IDC_WAIT);
    lytInputKey.Empty();
    const CString description = Value(0) + ".dlg";
    const CString outputRule = action.GetValues().GetTail();
    CString input;
    dialog->ComposeNamedOutput(outputRule, input);
    // A description refuses to open its dialog by composing nothing.
    if (!outputRule.IsEmpty() && input.IsEmpty())
    {
        lytTellMissing(ClytMissing::NestedDialog, Value(0), this, action.GetSpan());
        return After::Nothing;
    }

    const std::optional<CString> result = dialog->ShowNested(description, input);
    if (!result)
        return After::RunRules;
    lytInputKey = *result;
    if (!result->IsEmpty())
        dialog->RunInput(Value(1), *result);
    return After::RunRules;
}

CString ClytPushButtonControl::Value(int index) const
{
    const CStringList& values = action.GetValues();
    return values.GetAt(values.FindIndex(index));
}

ClytControl* ClytPushButtonControl::Find(const CString& target) const
{
    ClytControl* found = dialog->FindControl(target);
    if (found == nullptr)
        lytTellMissing(ClytMissing::ButtonTarget, target, this, action.GetSpan());
    return found;
}

// The button shows its caption and the text of the second value in turn.
void ClytPushButtonControl::ToggleCaption()
{
    const POSITION second = action.GetValues().FindIndex(1);
    if (second == nullptr)
        return;
    if (alternateCaption.IsEmpty())
    {
        SetWindowText(lytEnvironment.GetText(dialog->GetTextSection(), action.GetValues().GetAt(second)));
        GetWindowText(alternateCaption);
        return;
    }
    CString shown;
    GetWindowText(shown);
    SetWindowText(shown == alternateCaption ? caption : alternateCaption);
}

// The last control has none after it: that raises the invalid-argument exception.
void ClytPushButtonControl::FocusNextControl() const
{
    ClytControl* self = dialog->FindControl(name);
    if (self == nullptr)
        return;
    const ClytControlList& controls = dialog->GetControlList();
    POSITION place = controls.GetHeadPosition();
    while (controls.GetNext(place) != self)
    {
    }
    controls.GetAt(place)->SetControlFocus();
}
