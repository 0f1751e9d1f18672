#include "sysinfo/DirectoryAccess.h"

#include <cerrno>

std::optional<CString> DirectoryAccessLine(int error, const CString& directory)
{
    switch (error)
    {
    case ENOENT: return "Directory '" + directory + "' does not exist!";
    case EACCES: return "Directory '" + directory + "' does not have read / write access!";
    default: return {};
    }
}
