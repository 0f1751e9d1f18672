// Fills a catalogue from its data source, and a control from either.
#pragma once

#include "tree/ClytTreeItems.h"
#include "tree/TreeSource.h"

// Room for a label as shown.
inline constexpr int lytShownLabelSize = 255;

// Writes a label with three blanks in place of each "##"; three marks in a row leave the third.
void lytExpandLabel(char (&target)[lytShownLabelSize], const char* label);

// Reads one run and shows each entry, unless the source refuses to start; without `items` the nodes are only held. In a
// dialog of kind 'G' symbols become nodes that are not shown. Once it has ended, the run replaces what the list holds:
// a source that raises leaves the list as it was, and although a source may change the list meanwhile, the run is
// not touched.
void lytFillFromSource(ClytNodeList& nodes, const ClytTreeSource& source, ClytTreeItems* items, char kind);
// Shows the entries of a list that is already filled, and gives each node the item of this control.
void lytFillFromList(ClytNodeList& nodes, ClytTreeItems& items, char kind);
