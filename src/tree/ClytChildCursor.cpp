#include "tree/ClytChildCursor.h"

#include "tree/NodeFill.h"

#include <cstring>

ClytChildCursor lytChildCursor;

bool ClytChildCursor::Start(const ClytNodeList& nodes, const char* key)
{
    for (POSITION position = nodes.GetHeadPosition(); position != nullptr;)
    {
        if (std::strcmp(nodes.GetNext(position)->m_szKey, key) != 0)
            continue;
        if (position == nullptr)
            return false;
        if (nodes.GetAt(position)->m_cType == 'S')
            m_position = position;
        return true;
    }
    return false;
}

bool ClytChildCursor::Read(const ClytNodeList& nodes, CString& text, CString& path)
{
    if (m_position == nullptr)
        return false;

    const ClytNode& node = *nodes.GetAt(m_position);
    if (!m_levelKnown)
    {
        m_level = node.m_nLevel;
        m_levelKnown = true;
    }
    if (node.m_nLevel != m_level)
        return false;

    char label[lytShownLabelSize] = {};
    lytExpandLabel(label, node.m_szLabel);
    text = label;
    path = node.m_szKey;
    path += '\\';
    path += node.m_szLabel;
    nodes.GetNext(m_position);
    return true;
}
