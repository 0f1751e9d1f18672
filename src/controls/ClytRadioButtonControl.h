// One option of a group. Its value is its own text, checked or not; rules name the group instead.
#pragma once

#include "controls/ClytWindowControl.h"

class ClytOptionGroup;

class ClytRadioButtonControl : public ClytWindowControl<CButton>
{
public:
    ClytRadioButtonControl(CString controlName, ClytPosition topLeft, ClytSize extent, int isFirstOfGroup,
                           CString text);
    // Leaves its group.
    ~ClytRadioButtonControl() override;

    void CreateControl(ClytForm* owner) override;
    void SetOption(const CStringList& values, const CString& keyword) override;
    void SaveState() override { savedState = GetCheck(); }
    void SetControlFocus() override { SetFocus(); }
    // Its own value checks it and another one unchecks it; an empty one does nothing.
    void SetValue(const CString& value) override;
    // The same for a value that is not empty, with the tab stop left to the group, which sets many in a row.
    void Mark(const CString& value) { Check(value == optionValue); }
    CString GetValue() override { return optionValue; }
    int IsChanged() override { return GetCheck() != savedState ? 1 : 0; }

    // What the group does with its buttons, before their windows are there.
    void JoinGroup(ClytOptionGroup* optionGroup) { group = optionGroup; }
    void Preselect(const CString& value) { preselected = optionValue == value ? 1 : 0; }
    void TakeGroupOption(ClytOption option) { TakeCommonOption(lytTextOf(option)); }
    // Unchecks it when the user has chosen another one of its dialog.
    void YieldTo(const ClytRadioButtonControl& chosen);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Check(bool isChecked);

    CString optionValue;
    int preselected = 0;
    int firstOfGroup;
    int ownChecks = 0;                // in progress: what the program sets is not the user's choice
    ClytOptionGroup* group = nullptr; // releases its buttons before it is destroyed
};
