#include "controls/ClytListBoxControl.h"

#include "base/ClytRedrawPause.h"
#include "environment/ClytEnvironment.h"

BEGIN_MESSAGE_MAP(ClytListBoxControl, CListBox)
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

BOOL ClytListBoxControl::PreCreateWindow(CREATESTRUCTA& create)
{
    create.dwExStyle |= WS_EX_CLIENTEDGE;
    create.style |= WS_VSCROLL;
    return CListBox::PreCreateWindow(create);
}

void ClytListBoxControl::CreateControl(ClytForm* owner)
{
    // The style sorts what is added, but not what is inserted: the items keep their order.
    CreateCommon(owner, ClytFit::ToLayout,
                 [&](const CRect& rect, CWnd* parent) { return Create(LBS_STANDARD | WS_TABSTOP, rect, parent, 0); });
    ApplyOptionFlags();

    const ClytRedrawPause pause(*this);
    for (int index = 0; index < displayStrings.GetCount(); ++index)
        ExpectRoom(InsertString(index, TextOf(displayStrings.GetAt(index))));
    SetCurSel(0);
}

void ClytListBoxControl::AddItem(const CString& value, const CString& display, int hasValue, int place)
{
    PutItem(hasValue != 0 ? value : display, display, place);
    SetCurSel(0);
}

void ClytListBoxControl::MoveCurrentItem(int up)
{
    const int current = GetCurSel();
    if (current == LB_ERR)
    {
        SetControlFocus();
        return;
    }
    if (up != 0 && current == 0)
        lytRaise(lytError("FirstItemUp"));
    // The last item has none below it, and the arrays refuse the index.
    ChangePlaces(current, up != 0 ? current - 1 : current + 1);
}

void ClytListBoxControl::AppendItem(CString& result, int index) const
{
    const CString& display = displayStrings.GetAt(index);
    const CString text = valueStrings.GetAt(index).IsEmpty() ? display : TextOf(display);
    // A text that is not a key is taken literally.
    result += text == lytNoValue ? display : text;
}

void ClytListBoxControl::OnLButtonDblClk(UINT flags, CPoint point)
{
    RunDoubleClick();
    CListBox::OnLButtonDblClk(flags, point);
}
