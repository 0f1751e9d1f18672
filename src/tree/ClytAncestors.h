// The nodes above the present place of a walk from head to tail, so that finding a parent costs no walk back.
//
// It holds every node that can still be a parent: root first, levels rising. The walk chooses what it
// adds for a node: the node itself, or what it found there.
#pragma once

#include "tree/ClytNode.h"

#include <vector>

class ClytAncestors
{
public:
    // What was added for the nearest earlier node with a smaller level, or null. Nodes of that level or
    // a greater one are dropped: they can no longer be parents.
    const ClytNode* FindAbove(int level)
    {
        while (!path.empty() && path.back().level >= level)
            path.pop_back();
        return path.empty() ? nullptr : path.back().node;
    }
    // The item under which an entry of this level belongs; null is the root. It is read from the parent's node
    // at this moment: a parent that is not shown sends its entries to the root.
    HTREEITEM lytFindParentItem(int level)
    {
        const ClytNode* parent = FindAbove(level);
        return parent != nullptr ? parent->item : nullptr;
    }
    // Every node of the walk is added, shown or not, once its parent has been looked up.
    void Add(int level, const ClytNode* node) { path.push_back({level, node}); }

private:
    struct Step
    {
        int level;
        const ClytNode* node; // the list of the walk owns it
    };
    std::vector<Step> path;
};
