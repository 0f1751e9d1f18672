#include "sysinfo/files/IniSection.h"

#include "environment/ClytEnvironment.h"
#include "environment/ClytINISection.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/Report.h"

void lytShowIniSection(const char* section)
{
    ClytINISection read(lytEnvironment.GetIniFileName(), section);
    read.Read();
    for (CString& line : IniSectionLines(read))
        AddReportLine(std::move(line));
}
