#include "TreeWindow.h"

#include "FaultPlan.h"
#include "Metrics.h"

#include <algorithm>

namespace platform
{

LRESULT TreeWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case TVM_INSERTITEMA: return Insert(*reinterpret_cast<const TVINSERTSTRUCTA*>(lParam));
    case TVM_DELETEITEM: return m_items.Find(lParam) == root ? DeleteAll() : FALSE;
    case TVM_EXPAND:
    {
        const size_t item = m_items.Find(lParam);
        return item != none && item != root && Expand(item, static_cast<UINT>(wParam), false) ? TRUE : FALSE;
    }
    case TVM_GETNEXTITEM: return NextItem(wParam, m_items.Find(lParam));
    case TVM_SELECTITEM:
        return m_items.Find(lParam) != none && Select(m_items.Find(lParam), TVC_UNKNOWN) ? TRUE : FALSE;
    case TVM_GETITEMA: return GetItem(*reinterpret_cast<TVITEMA*>(lParam));
    case TVM_SETITEMA: return SetItem(*reinterpret_cast<const TVITEMA*>(lParam));
    case TVM_GETITEMRECT: return ItemRect(*reinterpret_cast<RECT*>(lParam), wParam != 0);
    case TVM_ENSUREVISIBLE:
        if (m_items.Find(lParam) == none || m_items.Find(lParam) == root)
            return FALSE;
        ShowItem(m_items.Find(lParam));
        return TRUE;
    // A tree with its drawing switched off stays visible, and scrolls.
    case WM_SETREDRAW: return 0;
    case TVM_SETIMAGELIST: m_images = reinterpret_cast<HIMAGELIST>(lParam); return 0;
    case TVM_GETIMAGELIST: return reinterpret_cast<LRESULT>(m_images);
    default: return HandleInput(message, wParam, lParam);
    }
}

LRESULT TreeWindow::Insert(const TVINSERTSTRUCTA& insert)
{
    const size_t under = Find(insert.hParent);
    if (under == none || IsToFail(FaultKind::Item))
        return 0;
    return TreeItems::HandleOf(m_items.Insert(under, insert.item.pszText, insert.item.iImage));
}

// Nobody asks for a message for each item that is deleted, so all go together.
LRESULT TreeWindow::DeleteAll()
{
    m_items.Clear();
    m_selected = root;
    m_top = 0;
    return TRUE;
}

// The state is given whole; the mask does not matter.
LRESULT TreeWindow::GetItem(TVITEMA& request) const
{
    const size_t item = Find(request.hItem);
    if (item == none || item == root)
        return FALSE;
    const TreeItems::Item& found = m_items.At(item);
    if ((request.mask & TVIF_STATE) != 0)
        request.state = found.state;
    if ((request.mask & TVIF_CHILDREN) != 0)
        request.cChildren = found.children.empty() ? 0 : 1;
    if ((request.mask & TVIF_IMAGE) != 0)
        request.iImage = found.image;
    if ((request.mask & TVIF_SELECTEDIMAGE) != 0)
        request.iSelectedImage = found.image;
    if ((request.mask & TVIF_TEXT) != 0 && request.pszText != nullptr)
        CopyText(found.text, static_cast<WPARAM>(request.cchTextMax), reinterpret_cast<LPARAM>(request.pszText));
    return TRUE;
}

LRESULT TreeWindow::SetItem(const TVITEMA& change)
{
    const size_t item = Find(change.hItem);
    if (item == none || item == root)
        return FALSE;
    if ((change.mask & TVIF_STATE) != 0)
        ChangeState(item, change.stateMask, change.state & change.stateMask);
    return TRUE;
}

LRESULT TreeWindow::NextItem(WPARAM relation, size_t item) const
{
    switch (relation)
    {
    case TVGN_ROOT: return TreeItems::HandleOf(m_items.FirstChild(root));
    case TVGN_CARET: return TreeItems::HandleOf(m_selected);
    case TVGN_FIRSTVISIBLE: return TreeItems::HandleOf(m_items.AtRow(m_top));
    default: break;
    }
    if (item == none || (item == root && relation != TVGN_CHILD))
        return 0;
    switch (relation)
    {
    case TVGN_CHILD: return TreeItems::HandleOf(m_items.FirstChild(item));
    case TVGN_PARENT: return TreeItems::HandleOf(m_items.At(item).parent);
    case TVGN_NEXT: return TreeItems::HandleOf(m_items.Sibling(item, 1));
    case TVGN_PREVIOUS: return TreeItems::HandleOf(m_items.Sibling(item, -1));
    case TVGN_NEXTVISIBLE: return TreeItems::HandleOf(Neighbour(item, 1));
    default: return 0;
    }
}

void TreeWindow::ChangeState(size_t item, UINT remove, UINT add)
{
    m_items.SetState(item, (m_items.At(item).state & ~remove) | add);
}

size_t TreeWindow::Neighbour(size_t item, int step) const
{
    const size_t row = m_items.RowOf(item);
    return row != none ? m_items.AtRow(row + static_cast<size_t>(step)) : root;
}

// The program hears of what it does itself only the first time that an item is expanded.
bool TreeWindow::Expand(size_t item, UINT action, bool isByUser)
{
    const bool isExpanding = action == TVE_EXPAND;
    if (!m_items.HasChildren(item))
        return false;
    if (m_items.IsExpanded(item) == isExpanding)
        return isExpanding;
    const bool isFirst = isExpanding && (m_items.At(item).state & TVIS_EXPANDEDONCE) == 0;
    if ((isFirst || isByUser) && Tell(TVN_ITEMEXPANDINGA, action, root, item) != 0)
        return false;
    if (isExpanding)
    {
        ChangeState(item, 0, TVIS_EXPANDED | TVIS_EXPANDEDONCE);
        ShowChildren(item);
    }
    else
        Collapse(item);
    if (isFirst || isByUser)
        Tell(TVN_ITEMEXPANDEDA, action, root, item);
    return true;
}

// A selection inside moves up to what is still seen, without a notification.
void TreeWindow::Collapse(size_t item)
{
    ChangeState(item, TVIS_EXPANDED, 0);
    for (size_t above = m_selected; above != root; above = m_items.At(above).parent)
    {
        if (m_items.At(above).parent != item)
            continue;
        ChangeState(m_selected, TVIS_SELECTED, 0);
        m_selected = item;
        ChangeState(item, 0, TVIS_SELECTED);
        break;
    }
    m_top = std::min(m_top, LastTop());
}

// As many children as there is room for, and the item itself.
void TreeWindow::ShowChildren(size_t item)
{
    const size_t row = m_items.RowOf(item);
    if (row == none)
        return;
    const size_t last = m_items.RowOf(m_items.At(item).children.back());
    const auto room = static_cast<size_t>(VisibleRows());
    if (last >= m_top + room)
        m_top = std::min(row, last - room + 1);
}

size_t TreeWindow::LastTop() const
{
    const size_t count = m_items.CountRows();
    const auto room = static_cast<size_t>(VisibleRows());
    return count > room ? count - room : 0;
}

bool TreeWindow::Select(size_t item, UINT action)
{
    if (item == m_selected)
        return true;
    const size_t previous = m_selected;
    if (Tell(TVN_SELCHANGINGA, action, previous, item) != 0)
        return false;
    if (previous != root)
        ChangeState(previous, TVIS_SELECTED, 0);
    m_selected = item;
    if (item != root)
    {
        ChangeState(item, 0, TVIS_SELECTED);
        ShowItem(item);
    }
    Tell(TVN_SELCHANGEDA, action, previous, item);
    return true;
}

void TreeWindow::ShowItem(size_t item)
{
    std::vector<size_t> ancestors;
    for (size_t above = m_items.At(item).parent; above != root; above = m_items.At(above).parent)
        ancestors.push_back(above);
    std::for_each(ancestors.rbegin(), ancestors.rend(),
                  [&](size_t above)
                  {
                      if (!m_items.IsExpanded(above))
                          Expand(above, TVE_EXPAND, true);
                  });
    // A program that refuses to expand what is above keeps the item hidden, as if it came after the last row.
    const size_t row = std::min(m_items.RowOf(item), m_items.CountRows());
    const auto room = static_cast<size_t>(VisibleRows());
    if (row < m_top)
        m_top = row;
    else if (row >= m_top + room)
        m_top = row - room + 1;
}

int TreeWindow::LabelStart(size_t item) const
{
    return (m_items.LevelOf(item) + (HasStyle(TVS_LINESATROOT) ? 1 : 0)) * indent +
           (m_images != nullptr ? imageWidth : 0);
}

int TreeWindow::RowHeight() const
{
    constexpr int blanks = 3;
    return std::max(CurrentMetrics().textHeight + blanks, imageWidth) / 2 * 2;
}

int TreeWindow::VisibleRows() const
{
    return std::max(1, static_cast<int>(ClientSize().cy) / RowHeight());
}

LRESULT TreeWindow::ItemRect(RECT& rect, bool isLabel) const
{
    const size_t item = Find(*reinterpret_cast<HTREEITEM*>(&rect));
    const size_t row = m_items.RowOf(item);
    if (row == none)
        return FALSE;
    const int top = (static_cast<int>(row) - static_cast<int>(m_top)) * RowHeight();
    const std::string& label = m_items.At(item).text;
    const int left = isLabel ? LabelStart(item) : 0;
    const int width = isLabel ? TextWidth(label.c_str(), static_cast<int>(label.size())) + 2 * labelMargin
                              : static_cast<int>(ClientSize().cx);
    rect = {left, top, left + width, top + RowHeight() - 1};
    return TRUE;
}

LRESULT TreeWindow::Tell(UINT code) const
{
    NMHDR header{handle, static_cast<UINT_PTR>(id), code};
    return ::SendMessageA(parent->handle, WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&header));
}

LRESULT TreeWindow::Tell(UINT code, UINT action, size_t oldItem, size_t newItem) const
{
    NMTREEVIEWA told{};
    told.hdr = {handle, static_cast<UINT_PTR>(id), code};
    told.action = action;
    told.itemOld.hItem = reinterpret_cast<HTREEITEM>(TreeItems::HandleOf(oldItem));
    told.itemNew.hItem = reinterpret_cast<HTREEITEM>(TreeItems::HandleOf(newItem));
    return ::SendMessageA(parent->handle, WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&told));
}

} // namespace platform
