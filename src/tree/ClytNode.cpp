#include "tree/ClytNode.h"

#include "environment/ProcessState.h"
#include "tree/ClytChildCursor.h"

void lytRestoreCurrentNode(ClytNodeList& nodes)
{
    for (POSITION position = nodes.GetHeadPosition(); position != nullptr;)
    {
        ClytNode* node = nodes.GetNext(position);
        node->m_nCurrent = node->m_nInitial == 1 ? 1 : 0;
    }
}

void lytRestoreTreeChoice()
{
    lytRestoreCurrentNode(lytSymbolNodes);
}

void lytDeleteNodes()
{
    lytChildCursor.Forget();
    lytSymbolNodes.RemoveAll();
    lytParaNodes.RemoveAll();
}
