#include "tree/NodeSearch.h"

#include "tree/ClytAncestors.h"

#include <cstring>

namespace
{

template <class Condition>
const ClytNode* FindFirst(const ClytNodeList& nodes, Condition condition)
{
    for (const ClytNode& node : nodes)
    {
        if (condition(node))
            return &node;
    }
    return nullptr;
}

void Mark(ClytNodeList& nodes, int ClytNode::*mark, const ClytNode* marked)
{
    for (ClytNode& node : nodes)
        node.*mark = &node == marked ? 1 : 0;
}

} // namespace

const ClytNode* lytFindNodeByItem(const ClytNodeList& nodes, HTREEITEM item)
{
    if (item == nullptr)
        return nullptr;
    return FindFirst(nodes, [item](const ClytNode& node) { return node.item == item; });
}

const ClytNode* lytFindCurrentNode(const ClytNodeList& nodes)
{
    return FindFirst(nodes, [](const ClytNode& node) { return node.current == 1; });
}

const ClytNode* lytFindNode(const ClytNodeList& nodes, char kind, const char* text)
{
    const size_t length = std::strlen(text);
    ClytAncestors nearest; // for each node above: where a climb from it ends
    for (const ClytNode& node : nodes)
    {
        const ClytNode* above = nearest.FindAbove(node.level);
        const ClytNode* climbed = node.type == kind ? &node : above;
        nearest.Add(node.level, climbed);

        const bool named = kind == 'G' ? std::strcmp(text, node.key) == 0 : std::strncmp(text, node.key, length) == 0;
        if (named && climbed != nullptr)
            return climbed;
    }
    return nullptr;
}

void lytMarkCurrentNode(ClytNodeList& nodes, const ClytNode* current)
{
    Mark(nodes, &ClytNode::current, current);
}

void lytMarkInitialNode(ClytNodeList& nodes, const ClytNode* initial)
{
    Mark(nodes, &ClytNode::initial, initial);
}

CString lytWizardChoice(const ClytNode& node)
{
    // A heading has no key to be inserted by.
    CString choice(node.type);
    choice += '/';
    if (node.type != 'H')
        choice += node.key;
    choice += '/';
    choice += node.label;
    return choice;
}
