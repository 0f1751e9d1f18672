// The walk over the symbols that follow a group, kept between two exported calls.
#pragma once

#include "tree/ClytNode.h"

class ClytChildCursor
{
public:
    // Goes to the node after the first one with this key. False when there is no such node or none after it. A node
    // that is not a symbol leaves the cursor where it was, and a later read continues there.
    [[nodiscard]] bool Start(const ClytNodeList& nodes, const char* key);
    // Gives the label as shown, and the path: the key, `\` and the label with its marks. False without a place, and at a
    // node of another level, where the cursor then stays.
    [[nodiscard]] bool Read(const ClytNodeList& nodes, CString& text, CString& path);
    // The nodes are about to be deleted: nothing is left to read.
    void Forget() { position = nullptr; }

private:
    POSITION position = nullptr;
    // The level of the very first node that was read in this process. It is never set again, so that children of a group
    // at another depth end their walk immediately.
    int level = 0;
    bool levelKnown = false;
};

// The walk over `lytSymbolNodes`.
extern ClytChildCursor lytChildCursor;
