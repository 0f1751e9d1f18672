#include "StdioStream.h"

#include <limits>
#include <share.h>
#include <string>

std::FILE* OpenTextStream(const char* fileName, UINT flags)
{
    const int sharing = (flags & CFile::shareDenyWrite) != 0 ? _SH_DENYWR : _SH_DENYNO;
    if ((flags & CFile::modeWrite) == 0)
        return _fsopen(fileName, "rt", sharing);
    // The runtime would translate line ends in pieces, with a write of the file for each.
    std::FILE* stream = _fsopen(fileName, (flags & CFile::modeNoTruncate) != 0 ? "ab" : "wb", sharing);
    if (stream != nullptr)
        std::setvbuf(stream, nullptr, _IONBF, 0);
    return stream;
}

bool ReadTextLine(std::FILE* stream, char* buffer, UINT count)
{
    // The runtime counts the NUL, the class library does not.
    return std::fgets(buffer, static_cast<int>(count) + 1, stream) != nullptr;
}

bool WriteText(std::FILE* stream, const char* text)
{
    std::string bytes;
    for (; *text != '\0'; ++text)
    {
        if (*text == '\n')
            bytes += '\r';
        bytes += *text;
    }
    return std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size();
}
