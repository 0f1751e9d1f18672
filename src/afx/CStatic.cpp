#include <afxwin.h>

BOOL CStatic::Create(const char* text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Static", text, style, rect, parent, id);
}
