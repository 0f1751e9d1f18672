// The exports of the system report.
#include "sysinfo/frame/Report.h"

#include "lyt64.h"

#include "exports/ExportFrame.h"

int __stdcall lytSystemInfoInit(const char* directory)
{
    LYT_EXPORT_FRAME(0);
    return lytGatherReport(directory);
}

int __stdcall lytSystemInfoRead(int index, char* target, int size)
{
    LYT_QUIET_FRAME(0);
    return lytReadReportLine(index, target, size);
}
