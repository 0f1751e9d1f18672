#include "lytdlg/try/ControlState.h"

#include "commandline/Text.h"
#include "controls/ClytCheckBoxControl.h"
#include "controls/ClytItemControl.h"
#include "controls/ClytOptionGroup.h"
#include "controls/ClytRadioButtonControl.h"
#include "controls/TypeWords.h"
#include "liveform/UserActs.h"
#include "robot/WindowRobot.h"

#include <algorithm>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

constexpr size_t typeWidth = 13;
constexpr size_t stateWidth = 9;

std::string Padded(std::string text, size_t width)
{
    text.append(text.size() < width ? width - text.size() : 1, ' ');
    return text;
}

template <class... TYPES>
bool IsAnyOf(const ClytControl& control)
{
    return ((dynamic_cast<const TYPES*>(&control) != nullptr) || ...);
}

template <class WINDOW>
const CStringArray* ValuesOf(const ClytControl& control)
{
    const auto* list = dynamic_cast<const ClytItemControl<WINDOW>*>(&control);
    return list != nullptr ? &list->GetItemValues() : nullptr;
}

const CStringArray* ItemValuesOf(const ClytControl& control)
{
    if (const auto* values = ValuesOf<CListBox>(control))
        return values;
    if (const auto* values = ValuesOf<CCheckListBox>(control))
        return values;
    return ValuesOf<CComboBox>(control);
}

std::vector<ItemState> ItemsOf(const ClytControl& control)
{
    std::vector<ItemState> items;
    const auto& window = dynamic_cast<const CWnd&>(control);
    const CStringArray* values = ItemValuesOf(control);
    for (const std::string& shown : robot::ItemsOf(window.m_hWnd))
    {
        const auto index = static_cast<int>(items.size());
        const std::string value =
            values != nullptr && index < values->GetCount() ? values->GetAt(index).GetString() : "";
        const auto* checkList = dynamic_cast<const CCheckListBox*>(&window);
        items.push_back({shown, value, checkList != nullptr && checkList->GetCheck(index) == BST_CHECKED});
    }
    return items;
}

// A text that an input puts into the field of a combo box leaves the choice as it was; one that is typed does not.
std::string LostTextOf(const ClytControl& control, const std::vector<ItemState>& items)
{
    const auto* combo = dynamic_cast<const CComboBox*>(&control);
    const int chosen = combo != nullptr ? combo->GetCurSel() : CB_ERR;
    if (chosen == CB_ERR)
        return "";
    const std::string shown = robot::TextOf(combo->m_hWnd);
    return shown == items.at(static_cast<size_t>(chosen)).shown ? "" : shown;
}

std::string States(const ControlState& state)
{
    return Padded(state.isEnabled ? "enabled" : "disabled", stateWidth) +
           Padded(state.isShown ? "shown" : "hidden", stateWidth - 2);
}

std::string DescribeContent(const ControlState& state)
{
    if (lytTypeOf(state.type).hasItems)
        return (state.value ? Quoted(ToUtf8(*state.value)) : "nothing chosen") + DescribeItems(state) +
               (state.lostText.empty() ? "" : "; " + DescribeLostText(state));
    if (state.value)
        return Quoted(ToUtf8(*state.value)) + (state.isChosen ? " chosen" : "");
    return state.caption.empty() ? "" : "text " + Quoted(ToUtf8(state.caption));
}

std::string ShownName(const ControlState& state)
{
    return state.name.empty() ? "-" : commandline::Shown(state.name);
}

std::string Describe(const ControlState& state, size_t nameWidth)
{
    std::string line =
        Padded(ShownName(state), nameWidth) + Padded(state.type, typeWidth) + States(state) + DescribeContent(state);
    line.erase(line.find_last_not_of(' ') + 1);
    return "  " + line + "\n";
}

} // namespace

const ControlState* DialogState::Find(const std::string& name) const
{
    const auto found = std::ranges::find(controls, name, &ControlState::name);
    return !name.empty() && found != controls.end() ? &*found : nullptr;
}

DialogState LookAt(const TrialDialog& dialog)
{
    DialogState state{robot::TextOf(dialog.m_hWnd), {}};
    for (ClytControl& control : dialog.GetControlList())
        state.controls.push_back(LookAt(dialog, control));
    return state;
}

ControlState LookAt(const TrialDialog& dialog, ClytControl& control)
{
    const ClytType& type = lytTypeOf(dialog.TypeOf(control));
    ControlState state{dialog.NameOf(control), type.word, IsSeenEnabled(control), IsSeen(control)};
    state.value = ValueOf(control);
    const auto& window = dynamic_cast<const CWnd&>(control);
    if (type.hasItems)
    {
        state.items = ItemsOf(control);
        state.lostText = LostTextOf(control, state.items);
    }
    else if (!type.hasValue)
        state.caption = robot::TextOf(window.m_hWnd);
    if (const auto* button = dynamic_cast<const CButton*>(&window); button != nullptr && type.kind == ClytKind::Option)
        state.isChosen = button->GetCheck() == BST_CHECKED;
    return state;
}

// A list without a choice is not asked for its value: it would take the focus.
std::optional<std::string> ValueOf(ClytControl& control)
{
    if (const auto* list = dynamic_cast<const CListBox*>(&control))
    {
        if (list->GetCurSel() == LB_ERR)
            return {};
    }
    else if (!IsAnyOf<CComboBox, CEdit, ClytCheckBoxControl, ClytRadioButtonControl, ClytOptionGroup>(control))
        return {};
    return control.GetValue().GetString();
}

Taking TakingOf(const ClytControl& control, const CString& value)
{
    const auto takenIf = [](bool isKnown) { return isKnown ? Taking::Taken : Taking::Unknown; };
    const auto isValue = [&](ClytControl* option) { return option->GetValue() == value; };
    if (dynamic_cast<const ClytOptionGroup*>(&control) != nullptr)
        return takenIf(std::ranges::any_of(OptionsOf(control), isValue));
    if (const auto* box = dynamic_cast<const ClytCheckBoxControl*>(&control))
        return takenIf(box->StateOf(value).has_value());
    const CStringArray* values = ItemValuesOf(control);
    const auto* combo = dynamic_cast<const CComboBox*>(&control);
    if (values == nullptr || (combo != nullptr && (combo->GetStyle() & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST))
        return Taking::Taken;
    int index = 0;
    while (index < values->GetCount() && values->GetAt(index) != value)
        ++index;
    // The search in a list ends two items before the last, but finds a single one.
    const bool isLate = combo == nullptr && values->GetCount() > 1 && index + 2 >= values->GetCount();
    return index < values->GetCount() && isLate ? Taking::OutOfReach : takenIf(index < values->GetCount());
}

std::string Describe(const DialogState& state)
{
    std::string text = "dialog " + Quoted(ToUtf8(state.title)) + "\n";
    size_t nameWidth = 0;
    for (const ControlState& control : state.controls)
        nameWidth = std::max(nameWidth, ShownName(control).size() + 1);
    for (const ControlState& control : state.controls)
        text += Describe(control, nameWidth);
    return text;
}

std::string DescribeLostText(const ControlState& state)
{
    return "the field shows " + Quoted(ToUtf8(state.lostText)) + ", which is no item and gets lost";
}

std::string DescribeItems(const ControlState& state)
{
    if (state.items.empty())
        return ", no items";
    std::string text = " of ";
    for (const ItemState& item : state.items)
    {
        const std::string mark = !lytTypeOf(state.type).hasMarks ? "" : item.isMarked ? "[x] " : "[ ] ";
        const std::string shown = item.shown == item.value ? "" : " (" + Quoted(ToUtf8(item.shown)) + ")";
        text += (&item != &state.items.front() ? ", " : "") + mark + Quoted(ToUtf8(item.value)) + shown;
    }
    return text;
}

} // namespace lytdlg
