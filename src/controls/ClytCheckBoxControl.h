// A check box. Its two states are two texts of the description.
#pragma once

#include "controls/ClytWindowControl.h"

#include <optional>

class ClytCheckBoxControl : public ClytWindowControl<CButton>
{
public:
    using ClytWindowControl::ClytWindowControl;

    void CreateControl(ClytForm* owner) override;
    void SetOption(const CStringList& values, const CString& keyword) override;
    void SaveState() override { savedState = GetCheck(); }
    void SetControlFocus() override { SetFocus(); }
    // The state for the text of either state, or for the words "ON" and "OFF"; nothing for any other value.
    std::optional<int> StateOf(const CString& value) const;
    // A value without a state changes nothing.
    void SetValue(const CString& value) override;
    CString GetValue() override { return GetCheck() == BST_CHECKED ? onValue : offValue; }
    int IsChanged() override { return GetCheck() != savedState ? 1 : 0; }

private:
    CString onValue;
    CString offValue;
    CString defaultValue; // the state to start in
};
