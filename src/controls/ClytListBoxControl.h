// A list of items of which one can be chosen.
#pragma once

#include "controls/ClytListControl.h"

class ClytListBoxControl : public ClytListControl<CListBox>
{
public:
    using ClytListControl::ClytListControl;

    void CreateControl(ClytForm* owner) override;
    // Position 0 means the end. Every added item selects the first item of the list.
    void AddItem(const CString& value, const CString& display, int hasValue, int place) override;
    void MoveCurrentItem(int up) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCTA& create) override;
    void AddPiece(const CString& text) override { AddItem(CString(), text, 0, 0); }
    void AppendItem(CString& result, int index) const override;

    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()
};
