#include "sysinfo/DirectoryAccess.h"
#include "sysinfo/Probes.h"
#include "sysinfo/ReportLines.h"

#include <cerrno>
#include <io.h>

namespace
{

constexpr int readAndWrite = 6;

}

void lytCheckDirectory(const CString& directory)
{
    if (_access(directory, readAndWrite) != 0)
        if (std::optional<CString> line = DirectoryAccessLine(errno, directory))
            AddReportLine(*std::move(line));
    lytListFiles(directory, "*.*", 0);
}
