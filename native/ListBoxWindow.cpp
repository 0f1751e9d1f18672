#include "ListBoxWindow.h"

#include "Metrics.h"

#include <algorithm>
#include <utility>

namespace platform
{

int ListBoxWindow::LineHeightOfSystem()
{
    return LineHeight(nullptr);
}

// A list that may have a horizontal bar is created with one, and fits its height to whole items above it. Then the bar goes,
// as there is nothing to scroll, and the list fits its height again.
void ListBoxWindow::OnCreated()
{
    style &= ~DWORD{WS_HSCROLL};
    Resize(Size());
}

SIZE ListBoxWindow::Adjusted(SIZE wanted) const
{
    const LONG bar = CurrentMetrics().scrollBarWidth;
    LONG frame = FrameOf(wanted).cy;
    if (HasStyle(WS_HSCROLL) && wanted.cy - frame > bar)
        frame += bar;
    const LONG room = wanted.cy - frame;
    return {wanted.cx, room < m_itemHeight ? wanted.cy : room / m_itemHeight * m_itemHeight + frame};
}

SIZE ListBoxWindow::ClientSize() const
{
    SIZE size = Window::ClientSize();
    if (HasBar())
        size.cx = std::max<LONG>(0, size.cx - CurrentMetrics().scrollBarWidth);
    return size;
}

LRESULT ListBoxWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFONT:
        if (!IsOwnerDrawn())
            m_itemHeight = LineHeight(reinterpret_cast<HGDIOBJ>(wParam));
        return Window::Handle(message, wParam, lParam);
    // Switching the drawing off does not hide a list.
    case WM_SETREDRAW: return 0;
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_DELETESTRING:
    case LB_RESETCONTENT:
    case LB_GETCOUNT:
    case LB_GETCURSEL:
    case LB_SETCURSEL:
    case LB_GETTEXTLEN:
    case LB_GETTEXT:
    case LB_GETITEMDATA:
    case LB_SETITEMDATA:
    case LB_GETCARETINDEX:
    case LB_GETTOPINDEX:
    case LB_SETTOPINDEX:
    case LB_GETITEMHEIGHT:
    case LB_SETITEMHEIGHT:
    case LB_GETITEMRECT: return HandleItems(message, wParam, lParam);
    default: return HandleInput(message, wParam, lParam);
    }
}

LRESULT ListBoxWindow::HandleItems(UINT message, WPARAM wParam, LPARAM lParam)
{
    const int index = static_cast<int>(wParam);
    const char* itemText = reinterpret_cast<const char*>(lParam);
    switch (message)
    {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_DELETESTRING:
    case LB_RESETCONTENT: return ChangeItems(message, index, itemText);
    case LB_GETCOUNT: return m_items.Count();
    case LB_GETCURSEL: return m_items.Current();
    case LB_SETCURSEL: return Select(index);
    case LB_GETTEXTLEN: return m_items.Has(index) ? static_cast<LRESULT>(m_items.At(index).text.size()) : LB_ERR;
    case LB_GETTEXT: return m_items.CopyOut(index, lParam);
    case LB_GETITEMDATA: return m_items.Has(index) ? m_items.At(index).data : LB_ERR;
    case LB_SETITEMDATA:
        if (!m_items.Has(index))
            return LB_ERR;
        m_items.At(index).data = lParam;
        return TRUE;
    case LB_GETCARETINDEX: return m_caret;
    case LB_GETTOPINDEX: return m_top;
    case LB_SETTOPINDEX: m_top = std::clamp(index, 0, LastTop()); return 0;
    case LB_GETITEMHEIGHT: return m_itemHeight;
    case LB_SETITEMHEIGHT: m_itemHeight = std::max(1, static_cast<int>(lParam)); return 0;
    default: return ItemRect(index, *reinterpret_cast<RECT*>(lParam));
    }
}

// A bar that comes or goes changes the client area, and with each such change the list fits its height to whole items.
LRESULT ListBoxWindow::ChangeItems(UINT message, int index, const char* itemText)
{
    LRESULT result = 0;
    switch (message)
    {
    case LB_ADDSTRING:
        result = m_items.Insert(HasStyle(LBS_SORT) ? m_items.SortedPlace(itemText) : -1, itemText);
        break;
    case LB_INSERTSTRING: result = m_items.Insert(index, itemText); break;
    case LB_DELETESTRING: result = Delete(index); break;
    default: m_items.Clear(); m_caret = m_top = 0;
    }
    if (std::exchange(m_hadBar, HasBar()) != m_hadBar)
    {
        Resize(Size());
        m_top = std::min(m_top, LastTop());
    }
    return result;
}

LRESULT ListBoxWindow::HandleInput(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    {
        ::SetFocus(handle);
        const int index = ItemAt(lParam);
        if (!m_items.Has(index))
            return 0;
        Select(index);
        m_isPressed = true;
        ::SetCapture(handle);
        return 0;
    }
    case WM_LBUTTONUP:
        if (!m_isPressed)
            return 0;
        m_isPressed = false;
        ::ReleaseCapture();
        Tell(LBN_SELCHANGE);
        return 0;
    case WM_LBUTTONDBLCLK: Tell(LBN_DBLCLK); return 0;
    case WM_KEYDOWN: TakeKey(wParam); return 0;
    case WM_CHAR: TakeCharacter(wParam); return 0;
    // The owner of a list that it draws hears of the focus in any case.
    case WM_SETFOCUS: Notify(LBN_SETFOCUS); return 0;
    case WM_KILLFOCUS: Notify(LBN_KILLFOCUS); return 0;
    default: return Window::Handle(message, wParam, lParam);
    }
}

int ListBoxWindow::ItemAt(LPARAM point) const
{
    const int y = static_cast<short>(HIWORD(point));
    return y < 0 ? -1 : m_top + y / m_itemHeight;
}

// Where it would leave nothing, there is none.
bool ListBoxWindow::HasBar() const
{
    return HasStyle(WS_VSCROLL) && m_items.Count() > VisibleItems() &&
           Window::ClientSize().cx >= CurrentMetrics().scrollBarWidth;
}

int ListBoxWindow::VisibleItems() const
{
    return std::max(1, static_cast<int>(Window::ClientSize().cy) / m_itemHeight);
}

LRESULT ListBoxWindow::ItemRect(int index, RECT& rect) const
{
    rect = {};
    // An empty list, too, knows where its first item would be, and one before it.
    if (index != -1 && index != 0 && !m_items.Has(index))
        return LB_ERR;
    const int top = (index - m_top) * m_itemHeight;
    const SIZE client = ClientSize();
    rect = {0, top, client.cx, top + m_itemHeight};
    return rect.bottom > 0 && rect.top < client.cy ? TRUE : FALSE;
}

LRESULT ListBoxWindow::Select(int index)
{
    const int selected = m_items.Select(index);
    if (selected >= 0)
    {
        m_caret = selected;
        ShowItem(selected);
    }
    return selected;
}

LRESULT ListBoxWindow::Delete(int index)
{
    const int left = m_items.Delete(index);
    if (left >= 0)
        m_caret = std::max(0, std::min(m_caret, left - 1));
    return left;
}

// The top item when the last one is in view.
int ListBoxWindow::LastTop() const
{
    return std::max(0, m_items.Count() - VisibleItems());
}

// Items that were deleted may have left room below the last one: the list closes it when the top item is chosen.
void ListBoxWindow::ShowItem(int index)
{
    if (index <= m_top)
        m_top = std::min(index, LastTop());
    else if (index >= m_top + VisibleItems())
        m_top = index - VisibleItems() + 1;
}

void ListBoxWindow::TakeKey(WPARAM key)
{
    const int last = m_items.Count() - 1;
    if (last < 0)
        return;
    // A caret that is not on the selected item is selected first.
    const bool isAtCaret = m_items.Current() == m_caret;
    switch (key)
    {
    case VK_UP:
    case VK_LEFT: Choose(isAtCaret ? std::max(0, m_caret - 1) : m_caret); return;
    case VK_DOWN:
    case VK_RIGHT: Choose(isAtCaret ? std::min(last, m_caret + 1) : m_caret); return;
    case VK_HOME: Choose(0); return;
    case VK_END: Choose(last); return;
    case VK_PRIOR: Choose(std::max(0, m_caret - std::max(1, VisibleItems() - 1))); return;
    case VK_NEXT: Choose(std::min(last, m_caret + std::max(1, VisibleItems() - 1))); return;
    case VK_SPACE: Select(m_caret); return;
    default: return;
    }
}

void ListBoxWindow::TakeCharacter(WPARAM character)
{
    const char letter = static_cast<char>(character);
    if (static_cast<unsigned char>(letter) <= VK_SPACE)
        return;
    const int found = m_items.FindPrefix(std::string(1, letter), m_caret + (m_items.Current() >= 0 ? 1 : 0));
    if (found >= 0)
        Choose(found);
}

void ListBoxWindow::Choose(int index)
{
    Select(index);
    Tell(LBN_SELCHANGE);
}

void ListBoxWindow::Tell(UINT code) const
{
    if (HasStyle(LBS_NOTIFY))
        Notify(code);
}

} // namespace platform
