#include "sysinfo/files/IniSection.h"

#include "environment/ClytINISection.h"

std::vector<CString> IniSectionLines(const ClytINISection& section)
{
    std::vector<CString> lines = {"Section [" + section.GetSectionName() + "] in lyt.ini:"};
    if (section.empty())
        lines.emplace_back("Section is EMPTY or not found!");

    const int width = static_cast<int>(section.GetLongestKey());
    for (const ClytINIStruct& each : section)
    {
        CString line;
        line.Format("  %-*s %s %s", width, each.key.GetString(), each.value.IsEmpty() ? "" : "=",
                    each.value.GetString());
        lines.push_back(line);
    }
    return lines;
}
