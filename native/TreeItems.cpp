#include "TreeItems.h"

namespace platform
{

size_t TreeItems::Find(LPARAM handle) const
{
    if (handle == 0 || handle == reinterpret_cast<LPARAM>(TVI_ROOT))
        return root;
    const auto item = static_cast<size_t>(handle);
    return item < m_items.size() && m_items[item].isThere ? item : none;
}

size_t TreeItems::Insert(size_t parent, const char* text, int image)
{
    const size_t item = m_items.size();
    m_items.push_back({text, parent, m_items[parent].children.size(), image, 0, true, {}, {}});
    m_items[parent].children.push_back(item);
    m_items[parent].rows.Append();
    if (IsExpanded(parent))
        ChangeRows(parent, 1);
    return item;
}

void TreeItems::Clear()
{
    for (Item& item : m_items)
    {
        item = {};
        item.isThere = false;
    }
    m_items[root].isThere = true;
}

void TreeItems::SetState(size_t item, UINT state)
{
    const bool wasExpanded = IsExpanded(item);
    m_items[item].state = state;
    if (IsExpanded(item) == wasExpanded)
        return;
    const size_t below = m_items[item].rows.Total();
    ChangeRows(item, wasExpanded ? size_t{0} - below : below);
}

void TreeItems::ChangeRows(size_t item, size_t difference)
{
    while (item != root)
    {
        const Item& changed = m_items[item];
        m_items[changed.parent].rows.Add(changed.place, difference);
        item = IsExpanded(changed.parent) ? changed.parent : root;
    }
}

size_t TreeItems::FirstChild(size_t item) const
{
    return HasChildren(item) ? m_items[item].children.front() : root;
}

size_t TreeItems::Sibling(size_t item, int step) const
{
    const std::vector<size_t>& row = m_items[m_items[item].parent].children;
    const size_t place = m_items[item].place + static_cast<size_t>(step);
    return place < row.size() ? row[place] : root;
}

int TreeItems::LevelOf(size_t item) const
{
    int level = 0;
    for (size_t above = m_items[item].parent; above != root; above = m_items[above].parent)
        ++level;
    return level;
}

size_t TreeItems::RowOf(size_t item) const
{
    if (item == root || item == none)
        return none;
    size_t row = 0;
    while (true)
    {
        const Item& found = m_items[item];
        row += m_items[found.parent].rows.Before(found.place);
        if (found.parent == root)
            return row;
        if (!IsExpanded(found.parent))
            return none;
        ++row;
        item = found.parent;
    }
}

size_t TreeItems::AtRow(size_t row) const
{
    size_t item = root;
    while (row < m_items[item].rows.Total())
    {
        const Item& above = m_items[item];
        item = above.children[above.rows.Find(row)];
        if (row == 0)
            return item;
        --row;
    }
    return root;
}

} // namespace platform
