#include "tree/ClytNode.h"

#include "environment/ProcessState.h"
#include "tree/ClytChildCursor.h"

void lytRestoreCurrentNode(ClytNodeList& nodes)
{
    for (ClytNode& node : nodes)
        node.current = node.initial == 1 ? 1 : 0;
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
