// A search for files by a pattern, and the question whether a file may be used.
#pragma once

#include "sysinfo/frame/FactHandles.h"

#include "system/NameLength.h"
#include <afx.h>

#include <cerrno>
#include <io.h>

// Begins a search and gives the first file found; no open search when no file matches.
inline ClytSearchHandle lytFindFirst(const CString& pattern, WIN32_FIND_DATAA& found)
{
    return NameFits(pattern) ? ClytSearchHandle(FindFirstFileA(pattern, &found)) : ClytSearchHandle();
}

// 0 when the file may be used in the mode of the runtime's own function, else the runtime's number of the error.
inline int lytAccessError(const CString& fileName, int mode)
{
    if (!NameFits(fileName))
        return ENOENT;
    return _access(fileName, mode) == 0 ? 0 : errno;
}
