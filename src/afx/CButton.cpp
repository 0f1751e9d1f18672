#include <afxwin.h>

BOOL CButton::Create(const char* caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Button", caption, style, rect, parent, id);
}
