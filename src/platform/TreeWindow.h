// A tree of items, of which one is selected and some are expanded.
#pragma once

#include "Window.h"

#include <commctrl.h>

namespace platform
{

class TreeWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    struct Item
    {
        std::string text;
        size_t parent = root;
        int image = 0;
        UINT state = 0;
        bool isThere = true; // the handle of one that is gone names no other
        std::vector<size_t> children;
    };

    static constexpr size_t root = 0; // above the items that have no parent; no item itself
    static constexpr size_t none = ~size_t{0};

    static LPARAM HandleOf(size_t item) { return static_cast<LPARAM>(item); }
    size_t ItemOf(LPARAM itemHandle) const;
    size_t ItemOf(HTREEITEM itemHandle) const { return ItemOf(reinterpret_cast<LPARAM>(itemHandle)); }
    bool IsExpanded(size_t item) const { return (m_items[item].state & TVIS_EXPANDED) != 0; }

    LRESULT HandleInput(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Insert(const TVINSERTSTRUCTA& insert);
    LRESULT DeleteAll();
    LRESULT GetItem(TVITEMA& request) const;
    LRESULT SetItem(const TVITEMA& change);
    LRESULT ItemRect(RECT& rect, bool isLabel) const;
    LRESULT NextItem(WPARAM relation, size_t item) const;
    size_t RowAfter(size_t item) const;
    size_t Sibling(size_t item, int step) const;

    bool Expand(size_t item, UINT action, bool isByUser);
    void Collapse(size_t item);
    bool Select(size_t item, UINT action);
    void ShowChildren(size_t item);
    // The row at the top when the last one is in sight.
    size_t LastTop() const;
    void ShowItem(size_t item);
    // The items that are seen when the tree is high enough, from top to bottom.
    std::vector<size_t> Rows() const;
    void AddRows(size_t item, std::vector<size_t>& rows) const;
    int LevelOf(size_t item) const;
    int LabelStart(size_t item) const;
    int RowHeight() const;
    int VisibleRows() const;

    void TakeClick(LPARAM point, bool isDouble);
    void TakeFocus();
    void TakeKey(WPARAM key);
    void TakeCharacter(WPARAM character);
    LRESULT Tell(UINT code) const;
    LRESULT Tell(UINT code, UINT action, size_t oldItem, size_t newItem) const;

    std::vector<Item> m_items{Item{}};
    size_t m_selected = root;
    size_t m_top = 0;              // the row at the top
    HIMAGELIST m_images = nullptr; // the program's
};

} // namespace platform
