#include "sysinfo/frame/Report.h"

#include "base/Iteration.h"
#include "environment/ClytEnvironment.h"

#include <algorithm>
#include <cstring>

void AddReportLine(CString line)
{
    lytEnvironment.lytReportLines.AddTail(std::move(line));
}

void AddReportLines(const CStringList& lines)
{
    for (const CString& line : lines)
        AddReportLine(line);
}

int lytReadReportLine(int index, char* target, int size)
{
    if (target == nullptr || size < 1)
        return 0;

    ClytReportLines& lines = lytEnvironment.lytReportLines;
    const CString* line = lines.Find(index);
    if (line == nullptr)
    {
        lines.RemoveAll();
        return 0;
    }

    const int length = std::min(line->GetLength(), size - 1);
    std::memcpy(target, line->GetString(), static_cast<size_t>(length));
    target[length] = '\0';
    target[size - 1] = '\0';
    return 1;
}
