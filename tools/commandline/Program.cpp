#include "commandline/Program.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>

namespace commandline
{

namespace
{

// A stream without translation of line ends, for a while.
class BinaryMode
{
public:
    explicit BinaryMode(std::FILE* stream) : m_stream(stream)
    {
        std::fflush(stream);
        m_modeBefore = _setmode(_fileno(stream), _O_BINARY);
    }
    BinaryMode(const BinaryMode&) = delete;
    BinaryMode& operator=(const BinaryMode&) = delete;
    ~BinaryMode()
    {
        std::fflush(m_stream);
        _setmode(_fileno(m_stream), m_modeBefore);
    }

private:
    std::FILE* m_stream;
    int m_modeBefore = 0;
};

} // namespace

int Finish(const char* program, int code)
{
    // A write that failed before is remembered by the stream alone.
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return code;
    std::fprintf(stderr, "%s: what was printed could not be written whole; is the disk full, or the output closed?\n",
                 program);
    return std::max(code, 1);
}

bool IsTerminal(std::FILE* stream)
{
    const char* const refused = std::getenv("NO_COLOR");
    return (refused == nullptr || *refused == '\0') && _isatty(_fileno(stream)) != 0;
}

std::string ReadStandardInput()
{
    const BinaryMode binary(stdin);
    std::string content;
    char block[8192];
    for (size_t count = 0; (count = std::fread(block, 1, sizeof block, stdin)) != 0;)
        content.append(block, count);
    return content;
}

void WriteBytes(const std::string& bytes)
{
    const BinaryMode binary(stdout);
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

} // namespace commandline
