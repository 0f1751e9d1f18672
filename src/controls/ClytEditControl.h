// A text field of one line. Its value is its text, which a data library can fill.
#pragma once

#include "controls/ClytDataLibrary.h"
#include "controls/ClytWindowControl.h"

class ClytEditControl : public ClytWindowControl<CEdit>
{
public:
    using ClytWindowControl::ClytWindowControl;

    void CreateControl(ClytForm* owner) override;
    void SetOption(const CStringList& values, const CString& keyword) override;
    void SaveState() override { savedText = GetValue(); }
    void SetControlFocus() override { SetFocus(); }
    // "FILL" fills the field through its library; an empty text changes nothing.
    void SetValue(const CString& value) override;
    CString GetValue() override;
    int IsChanged() override { return GetValue() == savedText ? 0 : 1; }
    // "CLEAR" empties the field as the user's delete key does; any other word fills it.
    void DoAction(const ClytStateWord& word) override;
    void FillByLibrary() override;
    int HasContent() override { return GetValue().IsEmpty() ? 0 : 1; }

protected:
    BOOL PreCreateWindow(CREATESTRUCTA& create) override;

private:
    CString defaultValue;
    ClytListSource source; // its start function gives the text
    CString savedText;
};
