#include <afxwin.h>

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Edit", nullptr, style, rect, parent, id);
}

void CEdit::SetSel(int start, int end) const
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    SendMessage(EM_SCROLLCARET);
}
