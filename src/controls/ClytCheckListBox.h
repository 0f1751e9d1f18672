// A list of items with a check mark each. One item can be selected; the marks leave the control by GetAllValues.
#pragma once

#include "controls/ClytListControl.h"

class ClytCheckListBox : public ClytListControl<CCheckListBox>
{
public:
    ClytCheckListBox(CString controlName, ClytPosition topLeft, ClytSize extent, CString text);

    void CreateControl(ClytForm* owner) override;
    void MoveCurrentItem(int up) override;

    // Inserts an item in arrays and window alike, and selects it; position 0 is the top. Without a separate value the
    // item delivers what it shows.
    void InsertItem(const CString& value, const CString& display, int check, int hasValue, int place);

protected:
    BOOL PreCreateWindow(CREATESTRUCTA& create) override;
    // A new piece lands on top, checked: the list shows the pieces in reverse order.
    void AddPiece(const CString& text) override { InsertItem(CString(), text, 1, 0, 0); }
    void AppendItem(CString& result, int index) const override;
    bool ComposeParameter(CString& parameter) override;
    int AddListed(CString value, CString display, int index) override;

    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void PutChecked(CString value, CString display, int check, int place);

    DRAWITEMSTRUCT drawRecord{};
};
