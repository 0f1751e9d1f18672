#include "StdioStream.h"

#include <limits>
#include <share.h>

std::FILE* OpenTextStream(const char* fileName, UINT flags)
{
    const int sharing = (flags & CFile::shareDenyWrite) != 0 ? _SH_DENYWR : _SH_DENYNO;
    if ((flags & CFile::modeWrite) == 0)
        return _fsopen(fileName, "rt", sharing);
    return _fsopen(fileName, (flags & CFile::modeNoTruncate) != 0 ? "at" : "wt", sharing);
}

bool ReadTextLine(std::FILE* stream, char* buffer, UINT count)
{
    // The runtime counts the NUL, the class library does not.
    return std::fgets(buffer, static_cast<int>(count) + 1, stream) != nullptr;
}

bool WriteText(std::FILE* stream, const char* text)
{
    return std::fputs(text, stream) >= 0;
}
