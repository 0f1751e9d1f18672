// Finds nodes of a catalogue, and words the result for the one that was chosen.
#pragma once

#include "tree/ClytNode.h"

// The first node with this item; null for the null item, which is that of every node not shown.
const ClytNode* lytFindNodeByItem(const ClytNodeList& nodes, HTREEITEM item);
// The first node that is marked as the one last confirmed.
const ClytNode* lytFindCurrentNode(const ClytNodeList& nodes);

// The node that a text names to a dialog of this kind. In kind 'G' the text is a whole key, in others the beginning of
// one. From the node with that key the search climbs to the nearest node of the dialog's kind, so that a symbol may
// name the group above it; a climb that ends at the root lets the search continue after it.
const ClytNode* lytFindNode(const ClytNodeList& nodes, char kind, const char* text);

// Marks the node as the current one, or as the one selected at opening; a null node leaves none marked.
void lytMarkCurrentNode(ClytNodeList& nodes, const ClytNode* current);
void lytMarkInitialNode(ClytNodeList& nodes, const ClytNode* initial);

// What the wizard is given of a node: `G/key/label`, `S/key/label` or `H//label`; the label keeps its "##" marks.
CString lytWizardChoice(const ClytNode& node);
