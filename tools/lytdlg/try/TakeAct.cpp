#include "lytdlg/try/Act.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "liveform/UserActs.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/Trial.h"
#include "robot/WindowRobot.h"
#include "script/Controls.h"

#include <algorithm>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;
using commandline::UsageError;
using script::Step;

namespace
{

[[noreturn]] void FailUnknown(const DialogState& dialog, const std::string& name, const std::string& place)
{
    std::vector<std::string> names;
    for (const ControlState& control : dialog.controls)
    {
        if (!control.name.empty())
            names.push_back(ToUtf8(control.name));
    }
    throw UsageError(place + "the dialog has no control \"" + ToUtf8(name) + "\"; " +
                     commandline::Suggestion(ToUtf8(name), names));
}

[[noreturn]] void FailWrongType(const TrialDialog& dialog, ClytControl& control, const Step& act, const char* wanted)
{
    throw UsageError(act.place + act.target.Written() + " is a " + dialog.TypeOf(control) + " and not " + wanted);
}

void CheckReach(ClytControl& control, const Step& act)
{
    const bool isEnabled = IsSeenEnabled(control);
    if (isEnabled && IsSeen(control))
        return;
    throw ActError(act.place + act.target.Written() + (isEnabled ? " is hidden" : " is disabled") +
                   ", so no user can reach it; `lytdlg why` gives the reason");
}

// The values that a control offers; none where it takes any text.
std::vector<std::string> OfferedBy(const TrialDialog& dialog, ClytControl& control)
{
    std::vector<std::string> values;
    for (const ItemState& item : LookAt(dialog, control).items)
        values.push_back(item.value);
    for (ClytControl* option : OptionsOf(control))
        values.emplace_back(option->GetValue().GetString());
    return values;
}

[[noreturn]] void FailNotOffered(const TrialDialog& dialog, ClytControl& control, const Step& act)
{
    std::string values;
    for (const std::string& value : OfferedBy(dialog, control))
        values += (values.empty() ? "; use one of: " : ", ") + Quoted(ToUtf8(value));
    throw UsageError(act.place + act.target.Written() + " does not offer " + Quoted(act.Argument()) +
                     (values.empty() ? "; it offers nothing" : values));
}

[[noreturn]] void FailNotFocused(const TrialDialog& dialog, const Step& act)
{
    const ClytControl* focused = FocusedControl(dialog);
    const std::string name = focused != nullptr ? ToUtf8(dialog.NameOf(*focused)) : "";
    const std::string other = focused == nullptr ? "nothing" : name.empty() ? "a control without a name" : name;
    throw ActError(act.place + act.target.Written() + " does not get the focus: " + other +
                   " has it, where the keys would land; --trace shows the rules that run on the way");
}

// The value of the item or option that shows a text, where the text is not a value itself.
std::string ValueOfShown(const TrialDialog& dialog, ClytControl& control, const std::string& text)
{
    const std::vector<std::string> values = OfferedBy(dialog, control);
    if (std::ranges::find(values, text) != values.end())
        return text;
    const std::vector<ItemState> items = LookAt(dialog, control).items;
    const auto item = std::ranges::find(items, text, &ItemState::shown);
    if (item != items.end())
        return item->value;
    for (ClytControl* option : OptionsOf(control))
    {
        std::string caption = robot::TextOf(dynamic_cast<const CWnd&>(*option).m_hWnd);
        std::erase(caption, '&');
        if (caption == text)
            return option->GetValue().GetString();
    }
    return text;
}

void EnterValue(const TrialDialog& dialog, ClytControl& control, const Step& act)
{
    const std::string value = ValueOfShown(dialog, control, commandline::ToAnsi(act.Argument()));
    const Entered entered = EnterAsUser(control, value.c_str());
    if (entered == Entered::NotFocused)
        FailNotFocused(dialog, act);
    if (entered != Entered::Done)
        FailNotOffered(dialog, control, act);
}

// A box has two values. Entering one that it does not have turns it over, so it is turned back.
void SetCheckBox(const TrialDialog& dialog, ClytControl& control, const Step& act)
{
    const CString before = control.GetValue();
    EnterValue(dialog, control, act);
    const CString after = control.GetValue();
    if (after == commandline::ToAnsi(act.Argument()).c_str())
        return;
    EnterAsUser(control, before);
    throw UsageError(act.place + act.target.Written() + " does not offer " + Quoted(act.Argument()) +
                     "; use one of: " + Quoted(ToUtf8(before.GetString())) + ", " + Quoted(ToUtf8(after.GetString())));
}

void Set(const TrialDialog& dialog, ClytControl& control, const Step& act)
{
    const ClytType& type = lytTypeOf(dialog.TypeOf(control));
    if (!type.hasValue)
        FailWrongType(dialog, control, act, "something that has a value");
    CheckReach(control, act);
    if (type.kind == ClytKind::CheckBox)
        SetCheckBox(dialog, control, act);
    else
        EnterValue(dialog, control, act);
}

void Press(const TrialDialog& dialog, ClytControl& control, const Step& act)
{
    if (!lytTypeOf(dialog.TypeOf(control)).isButton)
        FailWrongType(dialog, control, act, "a button");
    CheckReach(control, act);
    robot::Press(dynamic_cast<const CWnd&>(control).m_hWnd);
}

void DoubleClick(const TrialDialog& dialog, ClytControl& control, const Step& act)
{
    const auto* list = dynamic_cast<const CListBox*>(&control);
    if (list == nullptr)
        FailWrongType(dialog, control, act, "a list");
    CheckReach(control, act);
    CRect place;
    if (list->GetCurSel() == LB_ERR || list->GetItemRect(list->GetCurSel(), &place) == LB_ERR)
        throw ActError(act.place + "nothing is chosen in " + act.target.Written() + "; set it first");
    robot::DoubleClickAt(list->m_hWnd, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void SetMark(const TrialDialog& dialog, ClytControl& control, const Step& act)
{
    const auto* list = dynamic_cast<const CCheckListBox*>(&control);
    if (list == nullptr)
        FailWrongType(dialog, control, act, "a check list");
    CheckReach(control, act);
    EnterValue(dialog, control, act);
    const bool isMarked = list->GetCheck(list->GetCurSel()) == BST_CHECKED;
    if (isMarked != (act.word == "mark"))
        list->SendMessage(WM_KEYDOWN, VK_SPACE);
}

// What the description makes of an act: of values, which a window does not show, and of types.
struct Taker
{
    std::string_view word;
    void (*take)(const TrialDialog& dialog, ClytControl& control, const Step& act);
};

constexpr Taker takers[] = {
    {"set", Set}, {"press", Press}, {"doubleclick", DoubleClick}, {"mark", SetMark}, {"unmark", SetMark},
};

HWND WindowOf(ClytControl& control)
{
    const auto* window = dynamic_cast<const CWnd*>(&control);
    return window != nullptr ? window->m_hWnd : nullptr;
}

ClytControl& ControlOf(const TrialDialog& dialog, const Step& act)
{
    ClytControl* control = TargetOf(dialog, act);
    if (control == nullptr)
        FailUnknown(LookAt(dialog), commandline::ToAnsi(act.target.Written()), act.place);
    return *control;
}

// Any other act is that of a user who sees the window alone.
void TakeStep(const TrialDialog* dialog, const Step& act)
{
    script::Stage stage;
    if (dialog != nullptr && FormOf(act).shape[0] == 'c')
        stage.named = [window = WindowOf(ControlOf(*dialog, act))](const std::string& /*name*/) { return window; };
    if (!FormOf(act).ready(stage, act))
        throw ActError(act.place + ReasonOf(stage, act));
    FormOf(act).act(stage, act);
}

} // namespace

ClytControl* TargetOf(const TrialDialog& dialog, const Step& act)
{
    if (ClytControl* named = dialog.FindControl(commandline::ToAnsi(act.target.Written()).c_str()))
        return named;
    HWND window = script::FindControl(dialog.m_hWnd, act.target);
    for (ClytControl& control : dialog.GetControlList())
    {
        if (window != nullptr && WindowOf(control) == window)
            return &control;
    }
    return nullptr;
}

ClytControl& ControlNamed(const TrialDialog& dialog, const std::string& name, const std::string& place)
{
    ClytControl* control = name.empty() ? nullptr : dialog.FindControl(name.c_str());
    if (control == nullptr)
        FailUnknown(LookAt(dialog), name, place);
    return *control;
}

const ControlState& StateNamed(const DialogState& dialog, const std::string& name, const std::string& place)
{
    const ControlState* state = dialog.Find(name);
    if (state == nullptr)
        FailUnknown(dialog, name, place);
    return *state;
}

void TakeAct(TrialDialog* dialog, const Step& act)
{
    const auto* taker = std::ranges::find(takers, act.word, &Taker::word);
    if (dialog == nullptr || taker == std::end(takers))
        TakeStep(dialog, act);
    else
        taker->take(*dialog, ControlOf(*dialog, act), act);
}

} // namespace lytdlg
