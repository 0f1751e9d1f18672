// Decides which branches of a freshly filled tree are open and which entry is to be selected.
#pragma once

#include "tree/ClytTreeItems.h"

struct ClytExpansion
{
    // "TreeLevels" of the configuration; 0, as which a text that is not a number is read, means 2.
    int treeLevels = 0;
    // The opening by levels, until the symbol tree was confirmed for the first time; afterwards, and in the para tree,
    // branches are as the last confirmation left them.
    bool byLevels = false;
    // The key of the entry to select, or empty.
    CString selectKey;
};

// Expands branches and returns the item to select, or null.
HTREEITEM lytExpandNodes(const ClytNodeList& nodes, const ClytExpansion& expansion, ClytTreeItems& items);
