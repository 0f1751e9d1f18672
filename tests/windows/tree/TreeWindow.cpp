#include "TreeWindow.h"

#include "robot/WindowRobot.h"

#include <cstring>

namespace
{

LPARAM Parameter(const void* pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

} // namespace

HTREEITEM TreeWindow::Next(HTREEITEM item, UINT relation) const
{
    return reinterpret_cast<HTREEITEM>(SendMessageA(m_tree, TVM_GETNEXTITEM, relation, Parameter(item)));
}

TVITEMA TreeWindow::Request(HTREEITEM item, UINT mask) const
{
    TVITEMA request = {};
    request.hItem = item;
    request.mask = mask;
    request.stateMask = ~0U;
    SendMessageA(m_tree, TVM_GETITEMA, 0, Parameter(&request));
    return request;
}

void TreeWindow::Collect(HTREEITEM item, int depth, std::vector<HTREEITEM>& items, std::vector<int>& depths) const
{
    for (; item != nullptr; item = Next(item, TVGN_NEXT))
    {
        items.push_back(item);
        depths.push_back(depth);
        Collect(Next(item, TVGN_CHILD), depth + 1, items, depths);
    }
}

std::vector<std::string> TreeWindow::Items() const
{
    std::vector<HTREEITEM> items;
    std::vector<int> depths;
    Collect(Next(nullptr, TVGN_ROOT), 0, items, depths);
    std::vector<std::string> lines;
    for (size_t index = 0; index < items.size(); ++index)
    {
        const TVITEMA images = Request(items[index], TVIF_IMAGE | TVIF_SELECTEDIMAGE);
        std::string line(static_cast<size_t>(2 * depths[index]), ' ');
        line += robot::LabelOf(m_tree, items[index]) + " [" + std::to_string(images.iImage) + "]";
        if (images.iSelectedImage != images.iImage)
            line += " selected [" + std::to_string(images.iSelectedImage) + "]";
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> TreeWindow::OpenItems() const
{
    std::vector<HTREEITEM> items;
    std::vector<int> depths;
    Collect(Next(nullptr, TVGN_ROOT), 0, items, depths);
    std::vector<std::string> open;
    for (HTREEITEM item : items)
    {
        if ((Request(item, TVIF_STATE).state & TVIS_EXPANDED) != 0)
            open.push_back(robot::LabelOf(m_tree, item));
    }
    return open;
}

HTREEITEM TreeWindow::Find(const std::string& label) const
{
    std::vector<HTREEITEM> items;
    std::vector<int> depths;
    Collect(Next(nullptr, TVGN_ROOT), 0, items, depths);
    for (HTREEITEM item : items)
    {
        if (robot::LabelOf(m_tree, item) == label)
            return item;
    }
    return nullptr;
}

UINT TreeWindow::StateOf(const std::string& label) const
{
    return Request(Find(label), TVIF_STATE).state;
}

void TreeWindow::SetState(const std::string& label, UINT state) const
{
    TVITEMA request = {};
    request.hItem = Find(label);
    request.mask = TVIF_STATE;
    request.state = state;
    request.stateMask = 0xFF;
    SendMessageA(m_tree, TVM_SETITEMA, 0, Parameter(&request));
}

std::string TreeWindow::Selected() const
{
    HTREEITEM item = Next(nullptr, TVGN_CARET);
    return item != nullptr ? robot::LabelOf(m_tree, item) : "";
}

std::string TreeWindow::FirstVisible() const
{
    return robot::LabelOf(m_tree, Next(nullptr, TVGN_FIRSTVISIBLE));
}

void TreeWindow::Select(const std::string& label) const
{
    SendMessageA(m_tree, TVM_SELECTITEM, TVGN_CARET, Parameter(Find(label)));
}

void TreeWindow::SelectNothing() const
{
    SendMessageA(m_tree, TVM_SELECTITEM, TVGN_CARET, 0);
}

void TreeWindow::Expand(const std::string& label) const
{
    SendMessageA(m_tree, TVM_EXPAND, TVE_EXPAND, Parameter(Find(label)));
}

void TreeWindow::Collapse(const std::string& label) const
{
    SendMessageA(m_tree, TVM_EXPAND, TVE_COLLAPSE, Parameter(Find(label)));
}

void TreeWindow::DoubleClick(const std::string& label) const
{
    HTREEITEM item = Find(label);
    SendMessageA(m_tree, TVM_ENSUREVISIBLE, 0, Parameter(item));
    RECT place = {};
    std::memcpy(&place, &item, sizeof(HTREEITEM)); // the message is given its item in the place for the answer
    SendMessageA(m_tree, TVM_GETITEMRECT, TRUE, Parameter(&place));
    robot::DoubleClickAt(m_tree, place.left + 3, (place.top + place.bottom) / 2);
}

void TreeWindow::Resize(int width, int height) const
{
    SetWindowPos(m_dialog, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
}

SIZE TreeWindow::Size() const
{
    RECT place = {};
    GetWindowRect(m_dialog, &place);
    return {place.right - place.left, place.bottom - place.top};
}

RECT TreeWindow::PlaceOf(int control) const
{
    return robot::PlaceOf(GetDlgItem(m_dialog, control));
}

void TreeWindow::Confirm() const
{
    robot::Press(GetDlgItem(m_dialog, IDOK));
}

void TreeWindow::Cancel() const
{
    robot::Press(GetDlgItem(m_dialog, IDCANCEL));
}

void TreeWindow::Pick(const std::string& label) const
{
    Select(label);
    Confirm();
}
