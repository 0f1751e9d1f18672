#include <afxwin.h>

BOOL CButton::Create(const char* caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Button", caption, style, rect, parent, id);
}

BOOL CStatic::Create(const char* text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Static", text, style, rect, parent, id);
}

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Edit", nullptr, style, rect, parent, id);
}

void CEdit::SetSel(int start, int end) const
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    SendMessage(EM_SCROLLCARET);
}

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

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ComboBox", nullptr, style, rect, parent, id);
}

int CComboBox::AddString(const char* text) const
{
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CComboBox::InsertString(int index, const char* text) const
{
    return static_cast<int>(SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}
