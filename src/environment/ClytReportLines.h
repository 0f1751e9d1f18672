// The lines of the report, in order, until a reader has come past its end. Readers name a line by its index; the place
// found last is kept, so that a walk from line to line costs one step for each. All lines are removed together, so the
// kept place never outlives its line.
#pragma once

#include <afxcoll.h>

class ClytReportLines
{
public:
    void AddTail(CString line) { lines.AddTail(std::move(line)); }
    // Null when there is no line at the index.
    const CString* Find(int index);
    void RemoveAll();
    const CStringList& GetLines() const { return lines; }

private:
    CStringList lines;
    POSITION lastPlace = nullptr;
    int lastIndex = 0;
};
