// What filling and opening a tree asks of the control that shows it.
#pragma once

#include "tree/ClytNode.h"

class ClytTreeItems
{
public:
    ClytTreeItems() = default;
    ClytTreeItems(const ClytTreeItems&) = delete;
    ClytTreeItems& operator=(const ClytTreeItems&) = delete;
    virtual ~ClytTreeItems() = default;

    // Adds an item after the parent's other children; a null parent is the root.
    virtual HTREEITEM InsertItem(HTREEITEM parent, const char* text, int image) = 0;
    virtual void ExpandItem(HTREEITEM item) = 0;
    virtual HTREEITEM GetRootItem() const = 0;
};
