#include "tree/ClytChildCursor.h"

#include "tree/NodeFill.h"

#include <cstring>

ClytChildCursor lytChildCursor;

bool ClytChildCursor::Start(const ClytNodeList& nodes, const char* key)
{
    for (POSITION next = nodes.GetHeadPosition(); next != nullptr;)
    {
        if (std::strcmp(nodes.GetNext(next)->key, key) != 0)
            continue;
        if (next == nullptr)
            return false;
        if (nodes.GetAt(next)->type == 'S')
            position = next;
        return true;
    }
    return false;
}

bool ClytChildCursor::Read(const ClytNodeList& nodes, CString& text, CString& path)
{
    if (position == nullptr)
        return false;

    const ClytNode& node = *nodes.GetAt(position);
    if (!levelKnown)
    {
        level = node.level;
        levelKnown = true;
    }
    if (node.level != level)
        return false;

    char label[lytShownLabelSize] = {};
    lytExpandLabel(label, node.label);
    text = label;
    path = node.key;
    path += '\\';
    path += node.label;
    nodes.GetNext(position);
    return true;
}
