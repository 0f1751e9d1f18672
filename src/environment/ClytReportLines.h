// The lines of the report, in order, until its last line was read. Readers name a line by its index; the place found last
// is kept, so that a walk from line to line costs one step a line.
#pragma once

#include <afxcoll.h>

class ClytReportLines : public CStringList
{
public:
    // Null when no line stands at the index.
    POSITION FindIndex(int index);
    void RemoveAll();

private:
    // Lines go all at once: the kept place must not outlive its line.
    using CStringList::RemoveAt;
    using CStringList::RemoveHead;
    using CStringList::RemoveTail;

    POSITION lastPlace = nullptr;
    int lastIndex = 0;
};
