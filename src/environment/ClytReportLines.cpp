#include "environment/ClytReportLines.h"

const CString* ClytReportLines::Find(int index)
{
    if (index < 0 || index >= lines.GetCount())
        return nullptr;

    // From the kept place in either direction, unless the head is nearer.
    if (lastPlace == nullptr || index < lastIndex / 2)
    {
        lastPlace = lines.GetHeadPosition();
        lastIndex = 0;
    }
    for (; lastIndex < index; ++lastIndex)
        lines.GetNext(lastPlace);
    for (; lastIndex > index; --lastIndex)
        lines.GetPrev(lastPlace);
    return &lines.GetAt(lastPlace);
}

void ClytReportLines::RemoveAll()
{
    lines.RemoveAll();
    lastPlace = nullptr;
    lastIndex = 0;
}
