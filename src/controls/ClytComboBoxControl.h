// A drop-down list, with or without an edit field for free text.
#pragma once

#include "controls/ClytItemControl.h"

class ClytComboBoxControl : public ClytItemControl<CComboBox>
{
public:
    // The type word of the layout: "ComboBox" takes free text, "DropListBox" does not; any other makes no window.
    ClytComboBoxControl(CString typeWord, CString controlName, ClytPosition topLeft, ClytSize extent, CString text);

    void CreateControl(ClytForm* owner) override;
    // "FILL" fills the list through its library; a value that no item has becomes the text of the edit field.
    void SetValue(const CString& value) override;
    // Without a selection the value is the text of the window.
    CString GetValue() override;
    // Returns the index that is selected then, -1 in an emptied list.
    int DeleteCurrentItem() override;
    // Position 0 means the end. Every added item selects the first item of the list.
    void AddItem(const CString& value, const CString& display, int hasValue, int place) override;
    void MoveCurrentItem(int up) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCTA& create) override;
    void TakeSource(const CStringList& values) override;
    void AppendItem(CString& result, int index) const override;
    void AddHeadItem() override;

private:
    CString firstItemKey;
    CString firstItemValue;
    CString comboKind;
};
