// Text streams as the Windows runtime has them: CR LF is one line end, Ctrl-Z ends a text that is read, `\` separates
// folders and a folder is not a file.
#include "system/StdioStream.h"

#include "native/FaultPlan.h"
#include "native/MemoryFiles.h"
#include "native/NativePath.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int endOfText = 0x1A;

int GetTextCharacter(std::FILE* stream)
{
    const int ch = getc_unlocked(stream);
    if (ch == endOfText)
    {
        ungetc(ch, stream);
        return EOF;
    }
    if (ch != '\r')
        return ch;
    const int next = getc_unlocked(stream);
    if (next == '\n')
        return next;
    ungetc(next, stream);
    return ch;
}

std::FILE* OpenInMemory(const std::string& path, StreamUse use)
{
    if (use == StreamUse::Read)
        return platform::OpenMemoryFileToRead(path);
    if (use == StreamUse::Write)
        platform::RemoveMemoryFile(path.c_str());
    return platform::OpenMemoryFileToAppend(path);
}

bool IsFolder(const char* path)
{
    struct stat status = {};
    return stat(path, &status) == 0 && S_ISDIR(status.st_mode);
}

// From here on what the stream still holds goes to a device that is full.
void LoseWhatIsWritten(std::FILE* stream)
{
    const int device = open("/dev/full", O_WRONLY | O_CLOEXEC);
    dup2(device, fileno(stream));
    close(device);
}

} // namespace

std::FILE* OpenTextStream(const char* fileName, StreamUse use, StreamSharing /*sharing*/)
{
    if (platform::IsToFail(platform::FaultKind::Open))
    {
        errno = EMFILE;
        return nullptr;
    }
    const platform::PlatformAtWork working;
    const std::string path = NativePath(fileName);
    if (platform::IsInMemory(path))
        return OpenInMemory(path, use);
    if (IsFolder(path.c_str()))
    {
        errno = EACCES;
        return nullptr;
    }
    if (use == StreamUse::Read)
        return std::fopen(path.c_str(), "rb");
    return std::fopen(path.c_str(), use == StreamUse::Append ? "ab" : "wb");
}

bool ReadTextLine(std::FILE* stream, char* buffer, unsigned count)
{
    if (platform::IsToFail(platform::FaultKind::Read))
    {
        // A stream that is only read has an error after a write.
        putc_unlocked(endOfText, stream);
        return false;
    }
    unsigned length = 0;
    while (length < count)
    {
        const int ch = GetTextCharacter(stream);
        if (ch == EOF)
            break;
        buffer[length++] = static_cast<char>(ch);
        if (ch == '\n')
            break;
    }
    buffer[length] = '\0';
    return length > 0;
}

bool WriteText(std::FILE* stream, const char* text)
{
    if (platform::IsToFail(platform::FaultKind::Write))
    {
        errno = ENOSPC;
        return false;
    }
    if (platform::IsToFail(platform::FaultKind::Flush))
        LoseWhatIsWritten(stream);
    for (; *text != '\0'; ++text)
    {
        if (*text == '\n' && putc_unlocked('\r', stream) == EOF)
            return false;
        if (putc_unlocked(*text, stream) == EOF)
            return false;
    }
    return std::fflush(stream) == 0;
}
