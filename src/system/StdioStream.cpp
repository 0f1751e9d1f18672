#include "system/StdioStream.h"

#include <limits>
#include <share.h>
#include <string>

std::FILE* OpenTextStream(const char* fileName, StreamUse use, StreamSharing sharing)
{
    const int denied = sharing == StreamSharing::DenyWrite ? _SH_DENYWR : _SH_DENYNO;
    if (use == StreamUse::Read)
        return _fsopen(fileName, "rt", denied);
    // The runtime would translate line ends in pieces, with a write of the file for each.
    std::FILE* stream = _fsopen(fileName, use == StreamUse::Append ? "ab" : "wb", denied);
    if (stream != nullptr)
        std::setvbuf(stream, nullptr, _IONBF, 0);
    return stream;
}

bool ReadTextLine(std::FILE* stream, char* buffer, unsigned count)
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
