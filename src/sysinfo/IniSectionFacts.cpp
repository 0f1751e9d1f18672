#include "sysinfo/IniSection.h"

#include "environment/ClytEnvironment.h"
#include "environment/ClytINISection.h"
#include "sysinfo/Probes.h"
#include "sysinfo/ReportLines.h"

void lytShowIniSection(const char* section)
{
    ClytINISection read(lytEnvironment.GetIniFileName(), section);
    read.Read();
    for (CString& line : IniSectionLines(read))
        AddReportLine(std::move(line));
}
