#include <afxwin.h>

CClientDC::CClientDC(const CWnd* window) : m_hWnd(window != nullptr ? window->m_hWnd : nullptr)
{
    m_hDC = ::GetDC(m_hWnd);
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, m_hDC);
}

CSize CClientDC::GetTextExtent(const char* text, int count) const
{
    CSize size;
    ::GetTextExtentPoint32A(m_hDC, text, count, &size);
    return size;
}
