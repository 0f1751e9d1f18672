// A tree of items, of which one is selected and some are expanded.
#pragma once

#include "TreeItems.h"
#include "Window.h"

namespace platform
{

class TreeWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static constexpr size_t root = TreeItems::root;
    static constexpr size_t none = TreeItems::none;

    // Pixels.
    static constexpr int indent = 19;
    static constexpr int imageWidth = 16;
    static constexpr int labelMargin = 2;

    size_t Find(HTREEITEM handleOfItem) const { return m_items.Find(reinterpret_cast<LPARAM>(handleOfItem)); }

    LRESULT HandleInput(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Insert(const TVINSERTSTRUCTA& insert);
    LRESULT DeleteAll();
    LRESULT GetItem(TVITEMA& request) const;
    LRESULT SetItem(const TVITEMA& change);
    LRESULT ItemRect(RECT& rect, bool isLabel) const;
    LRESULT NextItem(WPARAM relation, size_t item) const;
    // The item so many rows after an item that is seen; the root where no such item is.
    size_t Neighbour(size_t item, int step) const;

    void ChangeState(size_t item, UINT remove, UINT add);

    bool Expand(size_t item, UINT action, bool isByUser);
    void Collapse(size_t item);
    bool Select(size_t item, UINT action);
    void ShowChildren(size_t item);
    // The row at the top when the last one is in sight.
    size_t LastTop() const;
    void ShowItem(size_t item);
    int LabelStart(size_t item) const;
    int RowHeight() const;
    int VisibleRows() const;

    void TakeClick(LPARAM point, bool isDouble);
    void TakeFocus();
    void TakeKey(WPARAM key);
    void TakeCharacter(WPARAM character);
    // By the keyboard; root is not selected.
    void SelectFound(size_t item);
    LRESULT Tell(UINT code) const;
    LRESULT Tell(UINT code, UINT action, size_t oldItem, size_t newItem) const;

    TreeItems m_items;
    size_t m_selected = root;
    size_t m_top = 0;              // the row at the top
    HIMAGELIST m_images = nullptr; // the program's
};

} // namespace platform
