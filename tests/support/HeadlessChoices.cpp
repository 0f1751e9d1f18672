// The stand-ins that choose among items, options and marks.
#include "support/HeadlessControls.h"

#include "base/Words.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "support/HeadlessForm.h"

#include <utility>

void HeadlessList::TakeStatement(const CStringList& values, const CString& keyword)
{
    if (!lytMeans<ClytKeyword::FilledBy>(keyword) && !lytMeans<ClytKeyword::DoubleClick>(keyword))
        items.push_back({keyword, values.GetHead()});
}

void HeadlessList::SaveState()
{
    savedState = selection;
    ++saveCount;
}

void HeadlessList::Select(int index)
{
    selection = index;
}

void HeadlessList::AddValues(const CString& text, const CString& separators)
{
    if (separators.GetLength() == 1)
        AddItem(CString(), text, 0, 0);
    if (separators.GetLength() != 2 && separators.GetLength() != 3)
        return;
    ClytTokenList tokens;
    lytTokenizeGrouped(text, separators, tokens);
    for (POSITION token = tokens.GetHeadPosition(); token != nullptr;)
        AddItem(CString(), tokens.GetNext(token).GetText(), 0, 0);
}

int HeadlessList::FindValue(const CString& value, size_t count) const
{
    for (size_t index = 0; index < count; ++index)
    {
        if (index >= items.size())
            AfxThrowInvalidArgException();
        if (items[index].value == value)
            return static_cast<int>(index);
    }
    return -1;
}

// The search stops two items short of the end, and of fewer than two items it runs past it.
void HeadlessList::SetValue(const CString& value)
{
    Select(FindValue(value, items.size() - 2));
}

void HeadlessList::GetAllValues(CString& result, const CString& separators)
{
    if (separators.GetLength() > 1)
        result += separators[1];
    for (size_t index = 0; index < items.size(); ++index)
    {
        const CString text = lytEnvironment.GetText(form.GetTextSection(), items[index].display);
        result += items[index].value.IsEmpty() || text == lytNoValue ? items[index].display : text;
        if (index + 1 < items.size() && !separators.IsEmpty())
            result += separators[0];
    }
    if (separators.GetLength() > 2)
        result += separators[2];
}

CString HeadlessList::GetValue()
{
    if (selection >= 0)
        return items[static_cast<size_t>(selection)].value;
    SetControlFocus();
    return {};
}

CString HeadlessList::GetDisplayValue()
{
    if (selection >= 0)
        return items[static_cast<size_t>(selection)].display;
    SetControlFocus();
    return {};
}

void HeadlessList::DoAction(const ClytStateWord& word)
{
    if (word.GetMeaning() != ClytState::Clear)
        return FillByLibrary();
    if (selection >= 0)
        items.clear();
    Select(-1);
}

int HeadlessList::DeleteCurrentItem()
{
    if (selection < 0)
        SetControlFocus();
    else
    {
        items.erase(items.begin() + selection);
        Select(std::min(selection, static_cast<int>(items.size()) - 1));
    }
    return static_cast<int>(items.size());
}

void HeadlessList::AddItem(const CString& value, const CString& display, int hasValue, int /*position*/)
{
    items.push_back({display, hasValue != 0 ? value : display});
    Select(0);
}

void HeadlessList::ReplaceCurrentItem(const CString& text)
{
    if (selection < 0)
        return SetControlFocus();
    items[static_cast<size_t>(selection)] = {text, text};
}

void HeadlessList::MoveCurrentItem(int up)
{
    if (selection < 0)
        return SetControlFocus();
    const int other = selection + (up != 0 ? -1 : 1);
    if (other < 0 || other >= static_cast<int>(items.size()))
        return;
    std::swap(items[static_cast<size_t>(selection)], items[static_cast<size_t>(other)]);
    Select(other);
}

void HeadlessList::Enter(const CString& input)
{
    Select(FindValue(input, items.size()));
    SendCommand();
}

std::string HeadlessList::Items() const
{
    std::string all;
    for (const Item& item : items)
        all += (all.empty() ? "" : "|") + std::string(item.display.GetString());
    return all;
}

HeadlessCombo::HeadlessCombo(HeadlessForm& ownerForm, const CString& controlName, ClytPosition topLeft, ClytSize extent,
                             const CString& label, bool takesFreeText)
    : HeadlessList(ownerForm, controlName, topLeft, extent, label), isFree(takesFreeText)
{
}

void HeadlessCombo::AddValues(const CString& /*text*/, const CString& /*separators*/) {}

void HeadlessCombo::SetValue(const CString& value)
{
    if (lytMeans<ClytValueWord::Fill>(value))
        return FillByLibrary();
    const int found = FindValue(value, items.size());
    if (found >= 0)
        return Select(found);
    if (!isFree)
        return;
    Select(-1);
    freeText = value;
    SendCommand();
}

CString HeadlessCombo::GetValue()
{
    return selection >= 0 ? items[static_cast<size_t>(selection)].value : freeText;
}

CString HeadlessCombo::GetDisplayValue()
{
    lytReport("201");
    return {};
}

void HeadlessCombo::Enter(const CString& input)
{
    SetValue(input);
    SendCommand();
}

void HeadlessCheckBox::TakeStatement(const CStringList& values, const CString& keyword)
{
    CString& target = lytMeans<ClytKeyword::On>(keyword)    ? onValue
                      : lytMeans<ClytKeyword::Off>(keyword) ? offValue
                                                            : defaultValue;
    target = values.GetHead();
}

void HeadlessCheckBox::FillInitially()
{
    isChecked = defaultValue == onValue;
}

void HeadlessCheckBox::SaveState()
{
    savedState = isChecked ? 1 : 0;
    ++saveCount;
}

void HeadlessCheckBox::SetValue(const CString& value)
{
    if (value == onValue || lytMeans<ClytValueWord::On>(value))
        isChecked = true;
    else if (value == offValue || lytMeans<ClytValueWord::Off>(value))
        isChecked = false;
}

void HeadlessCheckBox::Enter(const CString& input)
{
    SetValue(input);
    SendCommand();
}

void HeadlessRadioButton::TakeStatement(const CStringList& values, const CString& /*keyword*/)
{
    optionValue = values.GetHead();
}

void HeadlessRadioButton::SaveState()
{
    savedState = isChecked ? 1 : 0;
    ++saveCount;
}

void HeadlessRadioButton::SetValue(const CString& value)
{
    if (!value.IsEmpty())
        isChecked = value == optionValue;
}

void HeadlessOptionGroup::TakeStatement(const CStringList& values, const CString& /*keyword*/)
{
    for (HeadlessRadioButton* button : buttons)
        button->isChecked = button->GetValue() == values.GetHead();
}

void HeadlessOptionGroup::SetValue(const CString& value)
{
    for (HeadlessRadioButton* button : buttons)
        button->SetValue(value);
}

CString HeadlessOptionGroup::GetValue()
{
    for (HeadlessRadioButton* button : buttons)
    {
        if (button->isChecked)
            return button->GetValue();
    }
    return {};
}

void HeadlessOptionGroup::Enter(const CString& input)
{
    SetValue(input);
    SendCommand();
}
