#include "EditWindow.h"

#include "Metrics.h"

#include <algorithm>

namespace platform
{

LRESULT EditWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE: return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    case WM_SETTEXT:
        Window::Handle(message, wParam, lParam);
        m_anchor = m_caret = 0;
        TellChange();
        return TRUE;
    case EM_SETSEL: SelectFromTo(wParam, lParam); return TRUE;
    case EM_GETSEL: return static_cast<LRESULT>(MAKEWPARAM(std::min(m_anchor, m_caret), std::max(m_anchor, m_caret)));
    case EM_REPLACESEL: Replace(reinterpret_cast<const char*>(lParam)); return 0;
    case WM_CLEAR:
        if (m_anchor != m_caret)
            Replace({});
        return 0;
    case WM_CHAR: TakeCharacter(wParam); return 0;
    case WM_KEYDOWN: TakeKey(wParam); return 0;
    case WM_LBUTTONDOWN:
        ::SetFocus(handle);
        ::SetCapture(handle);
        m_anchor = m_caret = PlaceAt(static_cast<short>(LOWORD(lParam)));
        return 0;
    case WM_LBUTTONUP:
        if (::GetCapture() == handle)
            ::ReleaseCapture();
        return 0;
    case WM_SETFOCUS: Notify(EN_SETFOCUS); return 0;
    case WM_KILLFOCUS: Notify(EN_KILLFOCUS); return 0;
    default: return Window::Handle(message, wParam, lParam);
    }
}

// A negative start selects nothing, a negative end reaches to the end of the text.
void EditWindow::SelectFromTo(WPARAM start, LPARAM end)
{
    const auto from = static_cast<int>(start);
    const auto to = static_cast<int>(end);
    m_anchor = from < 0 ? m_caret : std::min(static_cast<size_t>(from), text.size());
    m_caret = from < 0 ? m_caret : to < 0 ? text.size() : std::min(static_cast<size_t>(to), text.size());
}

void EditWindow::Replace(std::string_view put)
{
    const size_t from = std::min(m_anchor, m_caret);
    text.replace(from, std::max(m_anchor, m_caret) - from, put);
    m_anchor = m_caret = from + put.size();
    TellChange();
}

void EditWindow::TakeCharacter(WPARAM character)
{
    if (character == VK_BACK)
    {
        if (m_anchor == m_caret && m_caret > 0)
            m_anchor = m_caret - 1;
        if (m_anchor != m_caret)
            Replace({});
        return;
    }
    const char typed = static_cast<char>(character);
    if (static_cast<unsigned char>(typed) >= VK_SPACE)
        Replace({&typed, 1});
}

void EditWindow::TakeKey(WPARAM key)
{
    switch (key)
    {
    case VK_UP:
    case VK_LEFT: MoveCaret(m_caret > 0 ? m_caret - 1 : 0); return;
    case VK_DOWN:
    case VK_RIGHT: MoveCaret(std::min(m_caret + 1, text.size())); return;
    case VK_HOME: MoveCaret(0); return;
    case VK_END: MoveCaret(text.size()); return;
    case VK_DELETE:
        if (m_anchor == m_caret && m_caret < text.size())
            m_anchor = m_caret + 1;
        if (m_anchor != m_caret)
            Replace({});
        return;
    default: return;
    }
}

void EditWindow::MoveCaret(size_t at)
{
    m_caret = at;
    if (::GetKeyState(VK_SHIFT) >= 0)
        m_anchor = at;
}

// The place between two characters that is next to a point.
size_t EditWindow::PlaceAt(int x) const
{
    size_t at = 0;
    int left = 0;
    for (; at < text.size(); ++at)
    {
        const int width = TextWidth(&text[at], 1);
        if (left + width / 2 >= x)
            break;
        left += width;
    }
    return at;
}

void EditWindow::TellChange() const
{
    Notify(EN_UPDATE);
    Notify(EN_CHANGE);
}

} // namespace platform
