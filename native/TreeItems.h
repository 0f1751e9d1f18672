// The items of a tree, and the rows in which those are seen that no collapsed item hides.
#pragma once

#include "RowCounts.h"

#include <commctrl.h>

#include <string>
#include <vector>

namespace platform
{

class TreeItems
{
public:
    struct Item
    {
        std::string text;
        size_t parent = root;
        size_t place = 0; // among the children of the parent
        int image = 0;
        UINT state = 0;
        bool isThere = true; // the handle of one that is gone names no other
        std::vector<size_t> children;
        RowCounts rows; // one for each child: its own row and, when it is expanded, those below it
    };

    static constexpr size_t root = 0; // above the items that have no parent; no item itself
    static constexpr size_t none = ~size_t{0};

    static LPARAM HandleOf(size_t item) { return static_cast<LPARAM>(item); }
    // The item of a handle; root for none, and `none` for one that is gone or never was.
    size_t Find(LPARAM handle) const;
    Item& At(size_t item) { return m_items[item]; }
    const Item& At(size_t item) const { return m_items[item]; }

    // Adds an item after the last child.
    size_t Insert(size_t parent, const char* text, int image);
    void Clear();

    bool IsExpanded(size_t item) const { return (m_items[item].state & TVIS_EXPANDED) != 0; }
    bool HasChildren(size_t item) const { return !m_items[item].children.empty(); }
    // Replaces the state whole.
    void SetState(size_t item, UINT state);

    // The root where no such item is.
    size_t FirstChild(size_t item) const;
    size_t Sibling(size_t item, int step) const;
    // How deep an item is; 0 for one without a parent.
    int LevelOf(size_t item) const;

    size_t CountRows() const { return m_items[root].rows.Total(); }
    // The row of an item, from 0; `none` for one that a collapsed item hides, and for root.
    size_t RowOf(size_t item) const;
    // The item of a row; root beyond the last one.
    size_t AtRow(size_t row) const;

private:
    // An item takes more or fewer rows; so does each expanded item above it.
    void ChangeRows(size_t item, size_t difference);

    std::vector<Item> m_items{Item{}};
};

} // namespace platform
