// lyt64-selftest: tries the library on this machine, without installation and without rights, and leaves a text to send back,
// in which names of people and machines are replaced. Words name the groups to try; without any, all are tried.
#include "CaseList.h"
#include "Child.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "commandline/WholeFile.h"
#include "lytcall/Redaction.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>

namespace fs = std::filesystem;

namespace
{

constexpr unsigned secondsOfCase = 60;
constexpr unsigned secondsOfTests = 300;

struct Counts
{
    int passed = 0;
    int failed = 0;
};

fs::path ProgramFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    return fs::path(path).parent_path();
}

// The folder of the cases is copied, since a zip may be unpacked where nothing may be written.
class WorkFolder
{
public:
    explicit WorkFolder(const fs::path& original)
        : m_path(fs::temp_directory_path() / ("lyt64-selftest-" + std::to_string(GetCurrentProcessId())))
    {
        fs::copy(original, m_path, fs::copy_options::recursive);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    std::string Path() const { return m_path.string(); }

private:
    fs::path m_path;
};

void ReplaceAll(std::string& text, const std::string& part, const std::string& by)
{
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size()))
        text.replace(at, part.size(), by);
}

// Line by line, with HERE for the folder of the files, also where its backslashes are doubled.
std::vector<std::string> LinesOf(const ChildEnd& end, const std::string& here)
{
    std::string doubled = here;
    ReplaceAll(doubled, "\\", "\\\\");
    std::vector<std::string> lines = commandline::LinesOf(end.output);
    for (std::string& line : lines)
    {
        line = commandline::AsUtf8(line);
        for (const std::string& folder : {here, doubled})
            ReplaceAll(line, folder, "HERE");
    }
    return lines;
}

int NumberAfter(const std::string& line, const std::string& label)
{
    return line.starts_with(label) ? std::atoi(line.c_str() + label.size()) : 0;
}

// As a program of tests sums up. One that comes to no sum has failed.
Counts CountTests(const ChildEnd& end, const std::vector<std::string>& lines)
{
    Counts counts;
    for (const std::string& line : lines)
    {
        counts.passed += NumberAfter(line, "[  PASSED  ] ");
        counts.failed += NumberAfter(line, "[  FAILED  ] ");
    }
    if (end.code != 0 && counts.failed == 0)
        counts.failed = 1;
    return counts;
}

Counts Judge(const Case& each, const ChildEnd& end, const std::vector<std::string>& lines)
{
    if (each.hasTests)
        return CountTests(end, lines);
    const bool isGood = end.code == each.code && (each.isKept || lines == each.expected);
    return {isGood ? 1 : 0, isGood ? 0 : 1};
}

void AddLines(std::vector<std::string>& result, const char* mark, const std::vector<std::string>& lines)
{
    std::ranges::transform(lines, std::back_inserter(result), [&](const std::string& line) { return mark + line; });
}

// What is expected and what came out, of a case that failed or whose output is wanted in any case.
void AddCase(std::vector<std::string>& result, const Case& each, const ChildEnd& end, const Counts& counts,
             const std::vector<std::string>& lines)
{
    result.push_back("== " + each.group + ": " + each.title);
    result.push_back("passed " + std::to_string(counts.passed) + ", failed " + std::to_string(counts.failed) +
                     ", ended with " + std::to_string(end.code));
    if (counts.failed != 0 && !each.hasTests && !each.isKept)
        AddLines(result, "< ", each.expected);
    if (counts.failed != 0 || each.isKept)
        AddLines(result, "> ", lines);
}

std::vector<std::string> NamesOfThisMachine()
{
    std::vector<std::string> names;
    for (const char* name : {"USERNAME", "COMPUTERNAME", "USERDOMAIN", "USERDNSDOMAIN"})
    {
        if (const char* const value = std::getenv(name))
            names.push_back(name + (":" + commandline::ToUtf8(value)));
    }
    return names;
}

// Beside the program, or in the folder for temporary files where that may not be written. Empty when neither may.
std::string Leave(const std::vector<std::string>& result)
{
    const std::string text = lytcall::TextOf(lytcall::Redacted(result, NamesOfThisMachine()));
    for (const fs::path& folder : {ProgramFolder(), fs::temp_directory_path()})
    {
        const std::string file = (folder / "lyt64-selftest.txt").string();
        if (commandline::WriteWholeFile(file, text))
            return file;
    }
    return "";
}

// Somebody who has started the program by a double click would see its window close.
void WaitForReader()
{
    DWORD processes[2] = {};
    if (GetConsoleProcessList(processes, 2) != 1)
        return;
    std::printf("Press Return to close this window.\n");
    std::getchar();
}

Counts Try(const std::vector<Case>& cases, const fs::path& files, std::vector<std::string>& result)
{
    const WorkFolder folder(files / "work");
    const std::string here = files.string();
    Counts all;
    for (size_t index = 0; index < cases.size(); ++index)
    {
        const Case& each = cases[index];
        std::printf("%3zu of %zu  %s: %s ... ", index + 1, cases.size(), each.group.c_str(), each.title.c_str());
        std::fflush(stdout);
        std::string command = each.command;
        ReplaceAll(command, "HERE", here);
        const ChildEnd end = RunChild(command, folder.Path(), each.hasTests ? secondsOfTests : secondsOfCase);
        const std::vector<std::string> lines = LinesOf(end, here);
        const Counts counts = Judge(each, end, lines);
        all.passed += counts.passed;
        all.failed += counts.failed;
        std::printf("%s\n", counts.failed == 0 ? "good" : "different");
        AddCase(result, each, end, counts, lines);
    }
    return all;
}

int Run(const std::vector<std::string>& groups)
{
    const fs::path files = ProgramFolder() / "files";
    const std::vector<Case> cases =
        ReadCases(commandline::ReadWholeFile((files / "cases.txt").string()).value_or(""), groups);
    if (cases.empty())
    {
        std::printf("lyt64-selftest: there is nothing to try; unpack the whole zip, and start the program there\n");
        return 2;
    }
    std::printf("Windows open and close by themselves. Please leave mouse and keyboard alone for two minutes.\n\n");
    std::vector<std::string> result = {std::string("lyt64-selftest ") + commandline::projectVersion};
    const Counts counts = Try(cases, files, result);
    const std::string sum = std::to_string(counts.passed) + " passed, " + std::to_string(counts.failed) + " failed";
    result.push_back("== " + sum);
    const std::string file = Leave(result);
    if (file.empty())
        std::printf("\nlyt64-selftest: the result can be written nowhere\n");
    else
        std::printf("\nThe result is in %s. Please send it back.\n", file.c_str());
    std::printf("%s\n", sum.c_str());
    return counts.failed == 0 && !file.empty() ? 0 : 1;
}

} // namespace

int main(int count, char** words)
{
    // A program that fails is reported here, and not by a box that waits for somebody.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    int code = 2;
    try
    {
        code = Run({words + 1, words + count});
    }
    catch (const std::exception& error)
    {
        std::printf("lyt64-selftest: %s\n", error.what());
    }
    WaitForReader();
    return code;
}
