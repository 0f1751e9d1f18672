#include <afxwin.h>

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ListBox", nullptr, style, rect, parent, id);
}

int CListBox::AddString(const char* text) const
{
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CListBox::InsertString(int index, const char* text) const
{
    return static_cast<int>(SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CListBox::GetItemRect(int index, RECT* rect) const
{
    return static_cast<int>(SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}

void CListBox::GetText(int index, CString& text) const
{
    const auto length = static_cast<int>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(index)));
    if (length == LB_ERR)
        AfxThrowInvalidArgException();
    SendMessage(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.GetBuffer(length)));
    text.ReleaseBuffer();
}
