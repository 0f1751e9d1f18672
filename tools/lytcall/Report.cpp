#include "lytcall/Commands.h"
#include "lytcall/Redaction.h"
#include "lytcall/ReportText.h"
#include "lytcall/Session.h"

#include "commandline/Text.h"
#include "commandline/WholeFile.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <io.h>

namespace lytcall
{

using commandline::PrintNumber;

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

ReportLines Gather(const Session& session, const std::string& folder)
{
    const Progress progress;
    progress.Show("examining this machine ...");
    session.Library().Find<InitFunction>("lytSystemInfoInit")(folder.c_str());
    ReportLines lines;
    std::vector<char> line(lineSize);
    for (int index = 0; session.Library().Find<ReadFunction>("lytSystemInfoRead")(index, line.data(), lineSize) == 1;
         ++index)
    {
        if (index % 100 == 0)
            progress.Show("reading line " + std::to_string(index));
        lines.emplace_back(line.data());
    }
    progress.End();
    return lines;
}

ReportLines ReadReport(const std::string& fileName)
{
    const std::optional<std::string> bytes = commandline::ReadWholeFile(fileName);
    if (!bytes)
        throw CallError(fileName + " cannot be read; save a report by `lytcall report --out " + fileName + "` first");
    const std::optional<ReportLines> lines = ReadSavedReport(*bytes);
    if (!lines)
        throw CallError(fileName + " is no report; name a file that `lytcall report --out FILE` has saved");
    return *lines;
}

// Names of this machine that the report itself does not print.
ReportLines NamesOfThisMachine()
{
    ReportLines names;
    for (const char* name : {"USERDOMAIN", "USERDNSDOMAIN"})
    {
        if (const char* const value = std::getenv(name))
            names.push_back(name + (":" + commandline::ToUtf8(value)));
    }
    return names;
}

// To standard output, or to the file that --out names.
void Write(const Request& request, const ReportLines& lines)
{
    const std::string text = request.Has("--json") ? JsonOf(CutReport(lines)) : TextOf(lines);
    const std::string fileName = request.Text("--out", "");
    if (fileName.empty())
    {
        std::fwrite(text.data(), 1, text.size(), stdout);
        return;
    }
    if (!commandline::WriteWholeFile(fileName, text))
        throw CallError(fileName +
                        " cannot be written, and what was there stays; check the name after --out, the rights "
                        "of its folder and the room on the disk");
    PrintNumber("lines", static_cast<int>(lines.size()));
}

} // namespace

int RunReport(const Session& session)
{
    const Request& request = session.Asked();
    if (request.operands.size() > 1)
        throw commandline::UsageError("one folder is examined; to compare two saved reports, add --diff");
    ReportLines lines = Gather(session, request.Operand(0, ProgramFolder()));
    std::ranges::transform(lines, lines.begin(), commandline::Shown);
    Write(request, request.Has("--redact") ? Redacted(lines, NamesOfThisMachine()) : lines);
    return 1;
}

bool RedactSavedReport(const Request& request)
{
    if (request.operands.size() != 1 || !commandline::ReadWholeFile(request.operands[0]))
        return false;
    Write(request, Redacted(ReadReport(request.operands[0])));
    return true;
}

bool CompareSavedReports(const Request& request)
{
    if (request.operands.size() != 2)
        throw commandline::UsageError("--diff compares two saved reports; write: lytcall report --diff FILE FILE");
    ReportLines all = ReadReport(request.operands[0]);
    const ReportLines second = ReadReport(request.operands[1]);
    ReportDifference difference = CompareReports(all, second);
    // Both reports tell names, and each gets the word that it would have in either.
    std::ranges::copy(second, std::back_inserter(all));
    if (request.Has("--redact"))
        difference.text = TextOf(Redacted(commandline::LinesOf(difference.text), all));
    std::fputs(difference.text.c_str(), stdout);
    PrintNumber("different lines", static_cast<int>(difference.lines));
    PrintNumber("different from run to run", static_cast<int>(difference.fromRunToRun));
    return difference.lines == 0;
}

} // namespace lytcall
