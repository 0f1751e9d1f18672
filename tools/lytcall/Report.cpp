#include "lytcall/Commands.h"

#include "commandline/OwnedFile.h"
#include "commandline/Text.h"

#include <cstdio>
#include <io.h>

namespace lytcall
{

using commandline::PrintNumber;
using commandline::ToUtf8;

namespace
{

using InitFunction = int __stdcall(const char*);
using ReadFunction = int __stdcall(int, char*, int);

constexpr int lineSize = 4096;

// A line of progress that overwrites itself, for somebody who waits at a terminal; nobody else wants it.
class Progress
{
public:
    void Show(const std::string& text) const
    {
        if (m_terminal)
            std::fprintf(stderr, "\r%-60s", text.c_str());
    }
    void End() const
    {
        if (m_terminal)
            std::fprintf(stderr, "\r%-60s\r", "");
    }

private:
    bool m_terminal = _isatty(_fileno(stderr)) != 0;
};

} // namespace

int RunReport(const Session& session)
{
    const std::string folder = session.Asked().Operand(0, ProgramFolder());
    const std::string fileName = session.Asked().Text("--out", "");
    const commandline::OwnedFile file(fileName.empty() ? nullptr : std::fopen(fileName.c_str(), "wb"));
    if (!fileName.empty() && file == nullptr)
        throw CallError(fileName + " cannot be written; check the name behind --out");

    const Progress progress;
    progress.Show("examining this machine ...");
    const int result = session.Library().Find<InitFunction>("lytSystemInfoInit")(folder.c_str());
    std::vector<char> line(lineSize);
    int count = 0;
    for (; session.Library().Find<ReadFunction>("lytSystemInfoRead")(count, line.data(), lineSize) == 1; ++count)
    {
        if (count % 100 == 0)
            progress.Show("reading line " + std::to_string(count));
        std::fprintf(file != nullptr ? file.get() : stdout, "%s\n", ToUtf8(line.data()).c_str());
    }
    progress.End();
    if (file != nullptr)
        PrintNumber("lines", count);
    return result;
}

} // namespace lytcall
