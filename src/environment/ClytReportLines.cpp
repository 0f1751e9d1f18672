#include "environment/ClytReportLines.h"

POSITION ClytReportLines::FindIndex(int index)
{
    if (index < 0 || index >= GetCount())
        return nullptr;

    // From the kept place in either direction, unless the head is nearer.
    if (lastPlace == nullptr || index < lastIndex / 2)
    {
        lastPlace = GetHeadPosition();
        lastIndex = 0;
    }
    for (; lastIndex < index; ++lastIndex)
        GetNext(lastPlace);
    for (; lastIndex > index; --lastIndex)
        GetPrev(lastPlace);
    return lastPlace;
}

void ClytReportLines::RemoveAll()
{
    CStringList::RemoveAll();
    lastPlace = nullptr;
    lastIndex = 0;
}
