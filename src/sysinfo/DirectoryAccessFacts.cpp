#include "sysinfo/DirectoryAccess.h"
#include "sysinfo/FileSearch.h"
#include "sysinfo/Probes.h"
#include "sysinfo/ReportLines.h"

namespace
{

constexpr int readAndWrite = 6;

}

void lytCheckDirectory(const CString& directory)
{
    if (const int error = lytAccessError(directory, readAndWrite); error != 0)
        if (std::optional<CString> line = DirectoryAccessLine(error, directory))
            AddReportLine(*std::move(line));
    lytListFiles(directory, "*.*", 0);
}
