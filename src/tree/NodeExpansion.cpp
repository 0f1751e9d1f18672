#include "tree/NodeExpansion.h"

namespace
{

constexpr int levelsWithoutValue = 2;

// The states of an open branch, without and with the selection on it. A branch with any other bit stays closed.
constexpr UINT openState = 96;
constexpr UINT openSelectedState = 98;

bool WasLeftOpen(const ClytNode& node)
{
    return node.itemState == openState || node.itemState == openSelectedState;
}

} // namespace

HTREEITEM lytExpandNodes(const ClytNodeList& nodes, const ClytExpansion& expansion, ClytTreeItems& items)
{
    if (nodes.IsEmpty())
        return nullptr;

    const long long levels = expansion.treeLevels != 0 ? expansion.treeLevels : levelsWithoutValue;
    HTREEITEM pending = expansion.byLevels && expansion.selectKey.IsEmpty() ? items.GetRootItem() : nullptr;
    for (const ClytNode& node : nodes)
    {
        if (expansion.byLevels ? node.level < levels - 1 : WasLeftOpen(node))
            items.ExpandItem(node.item);

        // A later entry with the key overrides an earlier one.
        const bool wanted = !expansion.selectKey.IsEmpty() && expansion.selectKey == node.key;
        if (wanted || (pending == nullptr && node.current == 1))
            pending = node.item;
    }
    return pending;
}
