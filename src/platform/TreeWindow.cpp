#include "TreeWindow.h"

#include "Desktop.h"
#include "MessageQueue.h"
#include "Metrics.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace platform
{

namespace
{

constexpr int indent = 19;
constexpr int imageWidth = 16;
constexpr int labelMargin = 2;

} // namespace

LRESULT TreeWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case TVM_INSERTITEMA: return Insert(*reinterpret_cast<const TVINSERTSTRUCTA*>(lParam));
    case TVM_DELETEITEM: return ItemOf(lParam) == root ? DeleteAll() : FALSE;
    case TVM_EXPAND:
    {
        const size_t item = ItemOf(lParam);
        return item != none && item != root && Expand(item, static_cast<UINT>(wParam), false) ? TRUE : FALSE;
    }
    case TVM_GETNEXTITEM: return NextItem(wParam, ItemOf(lParam));
    case TVM_SELECTITEM: return ItemOf(lParam) != none && Select(ItemOf(lParam), TVC_UNKNOWN) ? TRUE : FALSE;
    case TVM_GETITEMA: return GetItem(*reinterpret_cast<TVITEMA*>(lParam));
    case TVM_SETITEMA: return SetItem(*reinterpret_cast<const TVITEMA*>(lParam));
    case TVM_GETITEMRECT: return ItemRect(*reinterpret_cast<RECT*>(lParam), wParam != 0);
    case TVM_ENSUREVISIBLE:
        if (ItemOf(lParam) == none || ItemOf(lParam) == root)
            return FALSE;
        ShowItem(ItemOf(lParam));
        return TRUE;
    // A tree that does not draw is visible and scrolls all the same.
    case WM_SETREDRAW: return 0;
    case TVM_SETIMAGELIST: m_images = reinterpret_cast<HIMAGELIST>(lParam); return 0;
    case TVM_GETIMAGELIST: return reinterpret_cast<LRESULT>(m_images);
    default: return HandleInput(message, wParam, lParam);
    }
}

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

size_t TreeWindow::ItemOf(LPARAM itemHandle) const
{
    if (itemHandle == 0 || itemHandle == reinterpret_cast<LPARAM>(TVI_ROOT))
        return root;
    const auto item = static_cast<size_t>(itemHandle);
    return item < m_items.size() && m_items[item].isThere ? item : none;
}

LRESULT TreeWindow::Insert(const TVINSERTSTRUCTA& insert)
{
    const size_t under = ItemOf(insert.hParent);
    if (under == none)
        return 0;
    const size_t item = m_items.size();
    m_items.push_back({insert.item.pszText, under, insert.item.iImage, 0, true, {}});
    m_items[under].children.push_back(item);
    return HandleOf(item);
}

// Items go one by one only where someone needs it: no one does.
LRESULT TreeWindow::DeleteAll()
{
    for (size_t item = root + 1; item < m_items.size(); ++item)
        m_items[item] = {{}, root, 0, 0, false, {}};
    m_items[root].children.clear();
    m_selected = root;
    m_top = 0;
    return TRUE;
}

// The state is given whole, whatever the mask asks for.
LRESULT TreeWindow::GetItem(TVITEMA& request) const
{
    const size_t item = ItemOf(request.hItem);
    if (item == none || item == root)
        return FALSE;
    const Item& found = m_items[item];
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
    const size_t item = ItemOf(change.hItem);
    if (item == none || item == root)
        return FALSE;
    if ((change.mask & TVIF_STATE) != 0)
        m_items[item].state = (m_items[item].state & ~change.stateMask) | (change.state & change.stateMask);
    return TRUE;
}

size_t TreeWindow::Sibling(size_t item, int step) const
{
    const std::vector<size_t>& row = m_items[m_items[item].parent].children;
    const auto here = std::ranges::find(row, item);
    if (step < 0)
        return here != row.begin() ? *(here - 1) : root;
    return here + 1 != row.end() ? *(here + 1) : root;
}

size_t TreeWindow::RowAfter(size_t item) const
{
    const std::vector<size_t> rows = Rows();
    const auto found = std::ranges::find(rows, item);
    return found != rows.end() && found + 1 != rows.end() ? *(found + 1) : root;
}

LRESULT TreeWindow::NextItem(WPARAM relation, size_t item) const
{
    if (relation == TVGN_ROOT)
        return m_items[root].children.empty() ? 0 : HandleOf(m_items[root].children.front());
    if (relation == TVGN_CARET)
        return HandleOf(m_selected);
    if (relation == TVGN_FIRSTVISIBLE)
    {
        const std::vector<size_t> rows = Rows();
        return m_top < rows.size() ? HandleOf(rows[m_top]) : 0;
    }
    if (item == none || (item == root && relation != TVGN_CHILD))
        return 0;
    switch (relation)
    {
    case TVGN_CHILD: return m_items[item].children.empty() ? 0 : HandleOf(m_items[item].children.front());
    case TVGN_PARENT: return HandleOf(m_items[item].parent);
    case TVGN_NEXT: return HandleOf(Sibling(item, 1));
    case TVGN_PREVIOUS: return HandleOf(Sibling(item, -1));
    case TVGN_NEXTVISIBLE: return HandleOf(RowAfter(item));
    default: return 0;
    }
}

// The program hears of what it does itself only the first time that an item is expanded.
bool TreeWindow::Expand(size_t item, UINT action, bool isByUser)
{
    const bool isExpanding = action == TVE_EXPAND;
    if (m_items[item].children.empty())
        return false;
    if (IsExpanded(item) == isExpanding)
        return isExpanding;
    const bool isFirst = isExpanding && (m_items[item].state & TVIS_EXPANDEDONCE) == 0;
    if ((isFirst || isByUser) && Tell(TVN_ITEMEXPANDINGA, action, root, item) != 0)
        return false;
    if (isExpanding)
        m_items[item].state |= TVIS_EXPANDED | TVIS_EXPANDEDONCE;
    else
        Collapse(item);
    if (isExpanding)
        ShowChildren(item);
    if (isFirst || isByUser)
        Tell(TVN_ITEMEXPANDEDA, action, root, item);
    return true;
}

// A selection inside moves up to what is still seen, and no one is told.
void TreeWindow::Collapse(size_t item)
{
    m_items[item].state &= ~UINT{TVIS_EXPANDED};
    for (size_t above = m_selected; above != root; above = m_items[above].parent)
    {
        if (m_items[above].parent != item)
            continue;
        m_items[m_selected].state &= ~UINT{TVIS_SELECTED};
        m_selected = item;
        m_items[item].state |= TVIS_SELECTED;
        break;
    }
    m_top = std::min(m_top, LastTop());
}

// As many children as there is room for, and the item itself.
void TreeWindow::ShowChildren(size_t item)
{
    const std::vector<size_t> rows = Rows();
    const auto row = static_cast<size_t>(std::ranges::find(rows, item) - rows.begin());
    const auto last = static_cast<size_t>(std::ranges::find(rows, m_items[item].children.back()) - rows.begin());
    const auto room = static_cast<size_t>(VisibleRows());
    if (row < rows.size() && last >= m_top + room)
        m_top = std::min(row, last - room + 1);
}

size_t TreeWindow::LastTop() const
{
    const size_t count = Rows().size();
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
        m_items[previous].state &= ~UINT{TVIS_SELECTED};
    m_selected = item;
    if (item != root)
    {
        m_items[item].state |= TVIS_SELECTED;
        ShowItem(item);
    }
    Tell(TVN_SELCHANGEDA, action, previous, item);
    return true;
}

void TreeWindow::ShowItem(size_t item)
{
    std::vector<size_t> ancestors;
    for (size_t above = m_items[item].parent; above != root; above = m_items[above].parent)
        ancestors.push_back(above);
    std::for_each(ancestors.rbegin(), ancestors.rend(),
                  [&](size_t above)
                  {
                      if (!IsExpanded(above))
                          Expand(above, TVE_EXPAND, true);
                  });
    const std::vector<size_t> rows = Rows();
    const auto row = static_cast<size_t>(std::ranges::find(rows, item) - rows.begin());
    const auto room = static_cast<size_t>(VisibleRows());
    if (row < m_top)
        m_top = row;
    else if (row >= m_top + room)
        m_top = row - room + 1;
}

std::vector<size_t> TreeWindow::Rows() const
{
    std::vector<size_t> rows;
    AddRows(root, rows);
    return rows;
}

void TreeWindow::AddRows(size_t item, std::vector<size_t>& rows) const
{
    for (const size_t child : m_items[item].children)
    {
        rows.push_back(child);
        if (IsExpanded(child))
            AddRows(child, rows);
    }
}

int TreeWindow::LevelOf(size_t item) const
{
    int level = 0;
    for (size_t above = m_items[item].parent; above != root; above = m_items[above].parent)
        ++level;
    return level;
}

int TreeWindow::LabelStart(size_t item) const
{
    return (LevelOf(item) + (HasStyle(TVS_LINESATROOT) ? 1 : 0)) * indent + (m_images != nullptr ? imageWidth : 0);
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
    const size_t item = ItemOf(*reinterpret_cast<HTREEITEM*>(&rect));
    const std::vector<size_t> rows = Rows();
    const auto found = std::ranges::find(rows, item);
    if (found == rows.end())
        return FALSE;
    const int top = (static_cast<int>(found - rows.begin()) - static_cast<int>(m_top)) * RowHeight();
    const std::string& label = m_items[item].text;
    const int left = isLabel ? LabelStart(item) : 0;
    const int width = isLabel ? TextWidth(label.c_str(), static_cast<int>(label.size())) + 2 * labelMargin
                              : static_cast<int>(ClientSize().cx);
    rect = {left, top, left + width, top + RowHeight() - 1};
    return TRUE;
}

// The press tells of the click; a label that is not selected yet is so when the button comes up, before the focus moves.
void TreeWindow::TakeClick(LPARAM point, bool isDouble)
{
    const std::vector<size_t> rows = Rows();
    const int row = static_cast<int>(m_top) + static_cast<short>(HIWORD(point)) / RowHeight();
    const size_t item = row >= 0 && static_cast<size_t>(row) < rows.size() ? rows[static_cast<size_t>(row)] : root;
    const int x = static_cast<short>(LOWORD(point));
    const int boxStart = (LevelOf(item) + (HasStyle(TVS_LINESATROOT) ? 0 : -1)) * indent;
    const std::string& label = m_items[item].text;
    const int start = LabelStart(item);
    const bool isBox = item != root && !m_items[item].children.empty() && x >= boxStart && x < boxStart + indent;
    const bool isLabel = item != root && x >= boxStart + indent &&
                         x < start + TextWidth(label.c_str(), static_cast<int>(label.size())) + 2 * labelMargin;
    if (isDouble)
    {
        if (Tell(NM_DBLCLK) == 0 && isLabel)
            Expand(item, IsExpanded(item) ? TVE_COLLAPSE : TVE_EXPAND, true);
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
        Expand(item, IsExpanded(item) ? TVE_COLLAPSE : TVE_EXPAND, true);
        return;
    }
    if (isLabel)
        Select(item, TVC_BYMOUSE);
    ::SetFocus(handle);
}

// A tree without a selection selects what stands at its top.
void TreeWindow::TakeFocus()
{
    const std::vector<size_t> rows = Rows();
    if (m_selected == root && m_top < rows.size())
        Select(rows[m_top], TVC_UNKNOWN);
    Tell(NM_SETFOCUS);
}

void TreeWindow::TakeKey(WPARAM key)
{
    Tell(TVN_KEYDOWN);
    const std::vector<size_t> rows = Rows();
    const auto here = std::ranges::find(rows, m_selected);
    if (here == rows.end())
        return;
    switch (key)
    {
    case VK_UP:
        if (here != rows.begin())
            Select(*(here - 1), TVC_BYKEYBOARD);
        return;
    case VK_DOWN:
        if (here + 1 != rows.end())
            Select(*(here + 1), TVC_BYKEYBOARD);
        return;
    case VK_HOME: Select(rows.front(), TVC_BYKEYBOARD); return;
    case VK_END: Select(rows.back(), TVC_BYKEYBOARD); return;
    case VK_RIGHT:
        if (m_items[m_selected].children.empty())
            return;
        if (!IsExpanded(m_selected))
            Expand(m_selected, TVE_EXPAND, true);
        else
            Select(m_items[m_selected].children.front(), TVC_BYKEYBOARD);
        return;
    case VK_LEFT:
        if (IsExpanded(m_selected))
            Expand(m_selected, TVE_COLLAPSE, true);
        else if (m_items[m_selected].parent != root)
            Select(m_items[m_selected].parent, TVC_BYKEYBOARD);
        return;
    default: return;
    }
}

// The next row that begins with the letter, around the end.
void TreeWindow::TakeCharacter(WPARAM character)
{
    std::vector<size_t> rows = Rows();
    const auto here = std::ranges::find(rows, m_selected);
    if (here != rows.end())
        std::rotate(rows.begin(), here + 1, rows.end());
    const auto fold = [](char ch) { return std::tolower(static_cast<unsigned char>(ch)); };
    const auto found =
        std::ranges::find_if(rows,
                             [&](size_t row)
                             {
                                 const std::string& label = m_items[row].text;
                                 return !label.empty() && fold(label.front()) == fold(static_cast<char>(character));
                             });
    if (found != rows.end())
        Select(*found, TVC_BYKEYBOARD);
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
    told.itemOld.hItem = reinterpret_cast<HTREEITEM>(HandleOf(oldItem));
    told.itemNew.hItem = reinterpret_cast<HTREEITEM>(HandleOf(newItem));
    return ::SendMessageA(parent->handle, WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&told));
}

} // namespace platform

namespace
{

struct ImageList
{
    SIZE size;
    int count;
};

std::map<HIMAGELIST, ImageList>& ImageLists()
{
    static std::map<HIMAGELIST, ImageList> lists;
    return lists;
}

} // namespace

HIMAGELIST ImageList_Create(int width, int height, UINT /*flags*/, int /*initialSize*/, int /*growth*/)
{
    static uintptr_t lastHandle = 0x1000;
    const auto list = reinterpret_cast<HIMAGELIST>(++lastHandle);
    ImageLists()[list] = {{width, height}, 0};
    return list;
}

BOOL ImageList_Destroy(HIMAGELIST list)
{
    return ImageLists().erase(list) != 0;
}

int ImageList_ReplaceIcon(HIMAGELIST list, int /*index*/, HICON /*icon*/)
{
    const auto found = ImageLists().find(list);
    return found != ImageLists().end() ? found->second.count++ : -1;
}

int ImageList_GetImageCount(HIMAGELIST list)
{
    const auto found = ImageLists().find(list);
    return found != ImageLists().end() ? found->second.count : 0;
}

BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height)
{
    const auto found = ImageLists().find(list);
    if (found == ImageLists().end())
        return FALSE;
    *width = found->second.size.cx;
    *height = found->second.size.cy;
    return TRUE;
}
