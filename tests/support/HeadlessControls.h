// Controls without windows, one class for each that a layout can name. They hold what a window would hold (text, items,
// selection, check mark, enabled, shown) and send the form a command where a window would.
#pragma once

#include "model/ClytControl.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class HeadlessForm;

class HeadlessControl : public ClytControl
{
public:
    HeadlessControl(HeadlessForm& ownerForm, const CString& controlName, ClytPosition topLeft, ClytSize extent,
                    const CString& label);

    void CreateControl(ClytForm* owner) override;
    void SetOption(const CStringList& values, const CString& keyword) override;
    void SetControlFocus() override;
    void SetState(const ClytStateWord& word, int on) override;
    int IsActive() override { return isEnabled ? 1 : 0; }
    int HasContent() override { return 1; }
    int IsVisible() override { return isShown ? 1 : 0; }

    const CString& GetLabel() const { return caption; }
    ClytPosition GetPosition() const { return position; }
    ClytSize GetSize() const { return size; }
    // What the user does: types into a field, chooses an item or an option, checks a box.
    virtual void Enter(const CString& input);

    bool isEnabled = true;
    bool isShown = true;
    bool isCreated = false;
    int saveCount = 0; // how often the state was saved

protected:
    // Takes a statement that is no option word.
    virtual void TakeStatement(const CStringList& values, const CString& keyword);
    // The last step of the creation.
    virtual void FillInitially() {}
    void SendCommand();

    HeadlessForm& form; // owns this control
};

class HeadlessEdit : public HeadlessControl
{
public:
    using HeadlessControl::HeadlessControl;
    void SetOption(const CStringList& values, const CString& keyword) override;
    void SaveState() override;
    void SetValue(const CString& value) override;
    CString GetValue() override { return text; }
    int IsChanged() override { return text == savedText ? 0 : 1; }
    void DoAction(const ClytStateWord& word) override;
    void FillByLibrary() override;
    int HasContent() override { return text.IsEmpty() ? 0 : 1; }
    void Enter(const CString& input) override { SetText(input); }

    // Stands in for the library of a "FILLEDBY" statement: parameter text in, field text out.
    std::function<CString(const CString&)> library;

protected:
    void TakeStatement(const CStringList& values, const CString& keyword) override;
    void FillInitially() override { SetValue(defaultValue); }

private:
    void SetText(const CString& newText);

    CString text;
    CString savedText;
    CString defaultValue;
    CString parameterRule;
};

class HeadlessStatic : public HeadlessControl
{
public:
    using HeadlessControl::HeadlessControl;
    void SetValue(const CString& value) override { caption = value; }
};

class HeadlessList : public HeadlessControl
{
public:
    using HeadlessControl::HeadlessControl;
    void SaveState() override;
    void AddValues(const CString& text, const CString& separators) override;
    void SetValue(const CString& value) override;
    void GetAllValues(CString& result, const CString& separators) override;
    CString GetValue() override;
    CString GetDisplayValue() override;
    int IsChanged() override { return selection == savedState ? 0 : 1; }
    void DoAction(const ClytStateWord& word) override;
    int DeleteCurrentItem() override;
    void AddItem(const CString& value, const CString& display, int hasValue, int position) override;
    void ReplaceCurrentItem(const CString& text) override;
    void MoveCurrentItem(int up) override;
    int HasContent() override { return items.empty() ? 0 : 1; }
    void Enter(const CString& input) override;

    std::string Items() const; // the displayed texts, joined by "|"
    int GetSelection() const { return selection; }

protected:
    struct Item
    {
        CString display;
        CString value;
    };

    void TakeStatement(const CStringList& values, const CString& keyword) override;
    void FillInitially() override { Select(items.empty() ? -1 : 0); }
    void Select(int index);
    int FindValue(const CString& value, size_t count) const;

    std::vector<Item> items;
    int selection = -1;
};

class HeadlessCombo : public HeadlessList
{
public:
    HeadlessCombo(HeadlessForm& ownerForm, const CString& controlName, ClytPosition topLeft, ClytSize extent,
                  const CString& label, bool takesFreeText);
    void AddValues(const CString& text, const CString& separators) override;
    void SetValue(const CString& value) override;
    CString GetValue() override;
    CString GetDisplayValue() override;
    void Enter(const CString& input) override;

private:
    bool isFree;
    CString freeText;
};

class HeadlessCheckBox : public HeadlessControl
{
public:
    using HeadlessControl::HeadlessControl;
    void SaveState() override;
    void SetValue(const CString& value) override;
    CString GetValue() override { return isChecked ? onValue : offValue; }
    int IsChanged() override { return isChecked == (savedState != 0) ? 0 : 1; }
    void Enter(const CString& input) override;

protected:
    void TakeStatement(const CStringList& values, const CString& keyword) override;
    void FillInitially() override;

private:
    bool isChecked = false;
    CString onValue;
    CString offValue;
    CString defaultValue;
};

class HeadlessRadioButton : public HeadlessControl
{
public:
    using HeadlessControl::HeadlessControl;
    void SaveState() override;
    void SetValue(const CString& value) override;
    CString GetValue() override { return optionValue; }
    int IsChanged() override { return isChecked == (savedState != 0) ? 0 : 1; }

    bool isChecked = false;

protected:
    void TakeStatement(const CStringList& values, const CString& keyword) override;

private:
    CString optionValue;
};

class HeadlessOptionGroup : public HeadlessControl
{
public:
    using HeadlessControl::HeadlessControl;
    void SaveState() override { savedValue = GetValue(); }
    void SetValue(const CString& value) override;
    CString GetValue() override;
    int IsChanged() override { return GetValue() == savedValue ? 0 : 1; }
    void SetControlFocus() override {}
    void Enter(const CString& input) override;

    std::vector<HeadlessRadioButton*> buttons; // the form's, in layout order

protected:
    void TakeStatement(const CStringList& values, const CString& keyword) override;

private:
    CString savedValue;
};

class HeadlessPushButton : public HeadlessControl
{
public:
    using HeadlessControl::HeadlessControl;
    const ClytControlVal& GetAction() const { return action; }

protected:
    void TakeStatement(const CStringList& values, const CString& keyword) override { action.Set(keyword, values); }
};

// OK and Cancel know no name and take no state.
class HeadlessDefault : public HeadlessControl
{
public:
    HeadlessDefault(HeadlessForm& ownerForm, ClytPosition topLeft, ClytSize extent);
    void SetOption(const CStringList& /*values*/, const CString& /*keyword*/) override {}
    void SetState(const ClytStateWord& /*word*/, int /*on*/) override {}
    void SetControlFocus() override {}
    int IsActive() override { return 0; }
    int HasContent() override { return 0; }
};

// The control of a type word, null for an unknown word. The option group is the one that the last layout line opened.
std::unique_ptr<HeadlessControl> MakeHeadlessControl(HeadlessForm& form, HeadlessOptionGroup*& group,
                                                     const CString& type, const CString& name, ClytPosition position,
                                                     ClytSize size, const CString& label);
