#include "lytdlg/try/TakeAct.h"

#include "commandline/Suggestion.h"
#include "commandline/Text.h"
#include "liveform/UserActs.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/Trial.h"
#include "robot/WindowRobot.h"

#include <algorithm>
#include <array>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;
using commandline::UsageError;

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

[[noreturn]] void FailWrongType(const TrialDialog& dialog, ClytControl& control, const Act& act, const char* wanted)
{
    throw UsageError(act.place + ToUtf8(act.name) + " is a " + dialog.TypeOf(control) + " and not " + wanted);
}

void CheckReach(ClytControl& control, const Act& act)
{
    const bool isEnabled = IsSeenEnabled(control);
    if (isEnabled && IsSeen(control))
        return;
    throw ActError(act.place + ToUtf8(act.name) + (isEnabled ? " is hidden" : " is disabled") +
                   ", so no user can reach it; `lytdlg why` tells the reason");
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

[[noreturn]] void FailNotOffered(const TrialDialog& dialog, ClytControl& control, const Act& act)
{
    std::string values;
    for (const std::string& value : OfferedBy(dialog, control))
        values += (values.empty() ? "; use one of: " : ", ") + Quoted(ToUtf8(value));
    throw UsageError(act.place + ToUtf8(act.name) + " does not offer " + Quoted(ToUtf8(act.value)) +
                     (values.empty() ? "; it offers nothing" : values));
}

[[noreturn]] void FailNotFocused(const TrialDialog& dialog, const Act& act)
{
    const ClytControl* focused = FocusedControl(dialog);
    const std::string name = focused != nullptr ? ToUtf8(dialog.NameOf(*focused)) : "";
    const std::string other = focused == nullptr ? "nothing" : name.empty() ? "a control without a name" : name;
    throw ActError(act.place + ToUtf8(act.name) + " does not get the focus: " + other +
                   " has it, where the keys would land; --trace shows the rules that run on the way");
}

void EnterValue(const TrialDialog& dialog, ClytControl& control, const Act& act)
{
    const Entered entered = EnterAsUser(control, act.value.c_str());
    if (entered == Entered::NotFocused)
        FailNotFocused(dialog, act);
    if (entered != Entered::Done)
        FailNotOffered(dialog, control, act);
}

// A box has two values. Entering one that it does not have turns it over, so it is turned back.
void SetCheckBox(const TrialDialog& dialog, ClytControl& control, const Act& act)
{
    const CString before = control.GetValue();
    EnterValue(dialog, control, act);
    const CString after = control.GetValue();
    if (after == act.value.c_str())
        return;
    EnterAsUser(control, before);
    throw UsageError(act.place + ToUtf8(act.name) + " does not offer " + Quoted(ToUtf8(act.value)) +
                     "; use one of: " + Quoted(ToUtf8(before.GetString())) + ", " + Quoted(ToUtf8(after.GetString())));
}

void Set(const TrialDialog& dialog, ClytControl& control, const Act& act)
{
    const std::string& type = dialog.TypeOf(control);
    if (!HasItems(type) && !HasValue(type))
        FailWrongType(dialog, control, act, "something that has a value");
    CheckReach(control, act);
    if (type == "CheckBox")
        SetCheckBox(dialog, control, act);
    else
        EnterValue(dialog, control, act);
}

void Press(const TrialDialog& dialog, ClytControl& control, const Act& act)
{
    const std::string& type = dialog.TypeOf(control);
    if (type != "PushButton" && type != "OKButton" && type != "CancelButton")
        FailWrongType(dialog, control, act, "a button");
    CheckReach(control, act);
    robot::Press(dynamic_cast<const CWnd&>(control).m_hWnd);
}

void DoubleClick(const TrialDialog& dialog, ClytControl& control, const Act& act)
{
    const auto* list = dynamic_cast<const CListBox*>(&control);
    if (list == nullptr)
        FailWrongType(dialog, control, act, "a list");
    CheckReach(control, act);
    CRect place;
    if (list->GetCurSel() == LB_ERR || list->GetItemRect(list->GetCurSel(), &place) == LB_ERR)
        throw ActError(act.place + "nothing is chosen in " + ToUtf8(act.name) + "; set it first");
    robot::DoubleClickAt(list->m_hWnd, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void SetMark(const TrialDialog& dialog, ClytControl& control, const Act& act)
{
    const auto* list = dynamic_cast<const CCheckListBox*>(&control);
    if (list == nullptr)
        FailWrongType(dialog, control, act, "a check list");
    CheckReach(control, act);
    EnterValue(dialog, control, act);
    const bool isMarked = list->GetCheck(list->GetCurSel()) == BST_CHECKED;
    if (isMarked != (act.kind == ActKind::Mark))
        list->SendMessage(WM_KEYDOWN, VK_SPACE);
}

struct Taker
{
    ActKind kind;
    void (*take)(const TrialDialog& dialog, ClytControl& control, const Act& act);
};

constexpr Taker takers[] = {
    {ActKind::Set, Set},      {ActKind::Press, Press},    {ActKind::DoubleClick, DoubleClick},
    {ActKind::Mark, SetMark}, {ActKind::Unmark, SetMark},
};

// By its button, or without one by what Return and Escape send.
void End(int id)
{
    HWND window = robot::ActiveDialog();
    if (HWND button = GetDlgItem(window, id))
        robot::Press(button);
    else
        PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(id), 0);
}

} // namespace

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

void TakeAct(TrialDialog* dialog, const Act& act)
{
    if (act.kind == ActKind::Ok || act.kind == ActKind::Cancel)
    {
        End(act.kind == ActKind::Ok ? IDOK : IDCANCEL);
        return;
    }
    if (dialog == nullptr)
        throw ActError(act.place + "the window " + Quoted(ToUtf8(robot::TextOf(robot::ActiveDialog()))) +
                       " is no described dialog; end it with ok or cancel first");
    ClytControl& control = ControlNamed(*dialog, act.name, act.place);
    std::ranges::find(takers, act.kind, &Taker::kind)->take(*dialog, control, act);
}

} // namespace lytdlg
