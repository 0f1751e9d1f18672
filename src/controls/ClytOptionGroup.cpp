#include "controls/ClytOptionGroup.h"

#include "controls/ClytRadioButtonControl.h"

#include <utility>

namespace
{

// The group of the last "OptionGroup" statement of any layout, as long as it lives.
ClytOptionGroup* CurrentOptionGroup = nullptr;
// 1 from an "OptionGroup" statement until its first button.
int optionGroupOpen = 0;

} // namespace

ClytOptionGroup::ClytOptionGroup(CString controlName) : ClytControl(std::move(controlName), {}, {}, CString())
{
    CurrentOptionGroup = this;
    optionGroupOpen = 1;
}

ClytOptionGroup::~ClytOptionGroup()
{
    if (CurrentOptionGroup == this)
        CurrentOptionGroup = nullptr;
    for (ClytRadioButtonControl& button : buttons)
        button.JoinGroup(nullptr);
}

int ClytOptionGroup::TakeFirstOfGroup()
{
    return std::exchange(optionGroupOpen, 0);
}

void ClytOptionGroup::AddToCurrentGroup(ClytRadioButtonControl& button)
{
    if (CurrentOptionGroup == nullptr)
        return;
    CurrentOptionGroup->buttons.AddTail(&button);
    button.JoinGroup(CurrentOptionGroup);
}

void ClytOptionGroup::Remove(const ClytRadioButtonControl& button)
{
    for (POSITION place = buttons.GetHeadPosition(); place != nullptr;)
    {
        const POSITION here = place;
        if (buttons.GetNext(place) != &button)
            continue;
        buttons.RemoveAt(here);
        return;
    }
}

void ClytOptionGroup::CreateControl(ClytForm* owner)
{
    dialog = owner;
    // Only the first option that is set is passed on to the buttons, whose windows come after the group.
    const struct
    {
        int isSet;
        ClytOption meaning;
    } options[] = {{hidden, ClytOption::Hidden},
                   {invisible, ClytOption::Invisible},
                   {displayOnly, ClytOption::DisplayOnly},
                   {inactive, ClytOption::Inactive}};
    for (const auto& option : options)
    {
        if (option.isSet == 0)
            continue;
        for (ClytRadioButtonControl& button : buttons)
            button.TakeGroupOption(option.meaning);
        return;
    }
}

void ClytOptionGroup::SetOption(const CStringList& values, const CString& /*keyword*/)
{
    if (TakeCommonOption(values.GetHead()) != 0)
        return;
    for (ClytRadioButtonControl& button : buttons)
        button.Preselect(values.GetHead());
}

void ClytOptionGroup::SetValue(const CString& value)
{
    if (value.IsEmpty() || buttons.IsEmpty())
        return;
    for (ClytRadioButtonControl& button : buttons)
        button.Mark(value);
    PlaceTabStop();
}

CString ClytOptionGroup::GetValue()
{
    ClytRadioButtonControl* checked = Checked();
    return checked != nullptr ? checked->GetValue() : CString();
}

ClytRadioButtonControl* ClytOptionGroup::Checked() const
{
    for (ClytRadioButtonControl& button : buttons)
    {
        if (button.GetCheck() != BST_UNCHECKED)
            return &button;
    }
    return nullptr;
}

void ClytOptionGroup::Choose(const ClytRadioButtonControl& chosen)
{
    for (ClytRadioButtonControl& button : buttons)
        button.YieldTo(chosen);
    PlaceTabStop();
}

// The platform takes the tab stop of each option that is unchecked, and would leave a group without a choice out of
// reach of the keyboard. What the first option gets for that time it loses to the one that is chosen.
void ClytOptionGroup::PlaceTabStop()
{
    const ClytRadioButtonControl* checked = Checked();
    const ClytRadioButtonControl* first = buttons.GetHead();
    if (checked == nullptr)
        first->ModifyStyle(0, WS_TABSTOP);
    else if (checked != first)
        first->ModifyStyle(WS_TABSTOP, 0);
}

void ClytOptionGroup::SetState(const ClytStateWord& word, int on)
{
    active = on != 0 ? 1 : 0;
    for (ClytRadioButtonControl& button : buttons)
        button.SetState(word, on);
}
