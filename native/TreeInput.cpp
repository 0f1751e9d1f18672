// What a tree does with the mouse, the keys and the focus.
#include "MessageQueue.h"
#include "Metrics.h"
#include "TreeWindow.h"

#include <cctype>

namespace platform
{

LRESULT TreeWindow::HandleInput(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_LBUTTONDOWN: TakeClick(lParam, false); return 0;
    case WM_LBUTTONDBLCLK: TakeClick(lParam, true); return 0;
    case WM_KEYDOWN: TakeKey(wParam); return 0;
    case WM_CHAR: TakeCharacter(wParam); return 0;
    case WM_SETFOCUS: TakeFocus(); return 0;
    case WM_KILLFOCUS: Tell(NM_KILLFOCUS); return 0;
    default: return Window::Handle(message, wParam, lParam);
    }
}

// The press reports the click; a label not yet selected becomes so once the button is up, before the focus moves.
void TreeWindow::TakeClick(LPARAM point, bool isDouble)
{
    const int row = static_cast<int>(m_top) + static_cast<short>(HIWORD(point)) / RowHeight();
    const size_t item = row >= 0 ? m_items.AtRow(static_cast<size_t>(row)) : root;
    const int x = static_cast<short>(LOWORD(point));
    const int boxStart = (m_items.LevelOf(item) + (HasStyle(TVS_LINESATROOT) ? 0 : -1)) * indent;
    const std::string& label = m_items.At(item).text;
    const int start = LabelStart(item);
    const bool isBox = m_items.HasChildren(item) && item != root && x >= boxStart && x < boxStart + indent;
    const bool isLabel = item != root && x >= boxStart + indent &&
                         x < start + TextWidth(label.c_str(), static_cast<int>(label.size())) + 2 * labelMargin;
    if (isDouble)
    {
        if (Tell(NM_DBLCLK) == 0 && isLabel)
            Expand(item, m_items.IsExpanded(item) ? TVE_COLLAPSE : TVE_EXPAND, true);
        return;
    }
    if (isLabel)
    {
        // Whether the label is to be dragged shows when the button comes up: that message goes no further.
        ::SetCapture(handle);
        TakePosted(handle, WM_LBUTTONUP);
        ::ReleaseCapture();
    }
    if (Tell(NM_CLICK) != 0)
        return;
    if (isBox)
    {
        Expand(item, m_items.IsExpanded(item) ? TVE_COLLAPSE : TVE_EXPAND, true);
        return;
    }
    if (isLabel)
        Select(item, TVC_BYMOUSE);
    ::SetFocus(handle);
}

// A tree without a selection selects its topmost item.
void TreeWindow::TakeFocus()
{
    const size_t top = m_items.AtRow(m_top);
    if (m_selected == root && top != root)
        Select(top, TVC_UNKNOWN);
    Tell(NM_SETFOCUS);
}

void TreeWindow::TakeKey(WPARAM key)
{
    Tell(TVN_KEYDOWN);
    if (m_items.RowOf(m_selected) == none)
        return;
    switch (key)
    {
    case VK_UP: SelectFound(Neighbour(m_selected, -1)); return;
    case VK_DOWN: SelectFound(Neighbour(m_selected, 1)); return;
    case VK_HOME: SelectFound(m_items.AtRow(0)); return;
    case VK_END: SelectFound(m_items.AtRow(m_items.CountRows() - 1)); return;
    case VK_RIGHT:
        if (m_items.IsExpanded(m_selected))
            SelectFound(m_items.FirstChild(m_selected));
        else
            Expand(m_selected, TVE_EXPAND, true);
        return;
    case VK_LEFT:
        if (m_items.IsExpanded(m_selected))
            Expand(m_selected, TVE_COLLAPSE, true);
        else
            SelectFound(m_items.At(m_selected).parent);
        return;
    default: return;
    }
}

// The next row that begins with the letter, around the end.
void TreeWindow::TakeCharacter(WPARAM character)
{
    const auto fold = [](char ch) { return std::tolower(static_cast<unsigned char>(ch)); };
    const size_t count = m_items.CountRows();
    const size_t start = m_items.RowOf(m_selected) + 1; // after the selected row, else the first
    for (size_t step = 0; step < count; ++step)
    {
        const size_t item = m_items.AtRow((start + step) % count);
        const std::string& label = m_items.At(item).text;
        if (label.empty() || fold(label.front()) != fold(static_cast<char>(character)))
            continue;
        Select(item, TVC_BYKEYBOARD);
        return;
    }
}

void TreeWindow::SelectFound(size_t item)
{
    if (item != root)
        Select(item, TVC_BYKEYBOARD);
}

} // namespace platform
