// One entry of a catalogue as the data source delivered it, and the two catalogues.
//
// The order of a list alone carries the shape of the tree: the parent of a node is the nearest node before it with a
// smaller level, so levels may skip numbers and begin anywhere.
#pragma once

#include "base/ClytOwnedList.h"

#include <lytsrc.h>

// The tree control's name for one of its items, as the platform's headers declare it.
struct _TREEITEM;
using HTREEITEM = _TREEITEM*;

class ClytNode : public CObject
{
public:
    ClytNode(HTREEITEM nodeItem, int nodeLevel) : item(nodeItem), level(nodeLevel) {}

    HTREEITEM item; // null when held but not shown; stale when no dialog is open
    int level;
    char label[LYT_TREE_TEXT_SIZE] = {}; // with its "##" marks
    char key[LYT_TREE_TEXT_SIZE] = {};
    char type = '\0';   // 'H', 'G' or 'S'
    int current = 0;    // 1 on the node that was last confirmed
    UINT itemState = 0; // what the control reported when a dialog was last confirmed
    int initial = 0;    // 1 on the node that was selected when a dialog opened
};

using ClytNodeList = ClytOwnedList<ClytNode>;

extern ClytNodeList lytSymbolNodes;
extern ClytNodeList lytParaNodes;

// Makes the node that was selected at the dialog's opening the current one again.
void lytRestoreCurrentNode(ClytNodeList& nodes);
// Deletes the nodes of both catalogues; the walk over the child nodes ends with them.
void lytDeleteNodes();
