#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Watch.h"
#include "lytdlg/text/Words.h"
#include "lytdlg/try/CaseRun.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace lytdlg
{

namespace fs = std::filesystem;

using commandline::PrintLine;
namespace
{

// The case files that an operand means, in the order of their names.
std::vector<std::string> FilesOf(const std::string& operand)
{
    if (!fs::exists(PathOf(operand)))
        throw commandline::UsageError("there is no file or folder \"" + operand +
                                      "\"; name case files or their folder");
    if (!fs::is_directory(PathOf(operand)))
        return {PathOf(operand).generic_string()};
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(PathOf(operand)))
    {
        if (entry.path().extension() == ".case")
            files.push_back(entry.path().generic_string());
    }
    std::ranges::sort(files);
    if (files.empty())
        throw commandline::UsageError("the folder \"" + operand + "\" holds no file NAME.case; write one");
    return files;
}

struct Count
{
    int passed = 0;
    int failed = 0;
    int updated = 0;
    int notUnderstood = 0; // files
};

void Print(const GoldenCase& one, const Difference& difference)
{
    PrintLine(one.file + ":" + std::to_string(difference.line) + ": " + one.name);
    if (difference.isStop)
    {
        PrintLine("    cannot continue: " + difference.got);
        return;
    }
    PrintLine("    expected: " + (difference.expected.empty() ? "nothing more" : difference.expected));
    PrintLine("    got:      " + (difference.got.empty() ? "nothing" : difference.got));
}

// The line ends stay what they were.
void Update(const std::string& file, const std::string& content, const CaseUpdate& update)
{
    const std::string lineEnd = LineEndOf(content);
    std::string text;
    for (const std::string& line : Updated(commandline::LinesOf(content), update))
        text += line + lineEnd;
    WriteWholeFile(PathOf(file), text);
    PrintLine(file + ": brought up to date");
}

// A case that could not continue is not brought up to date.
int& PlaceFor(const CaseResult& result, bool isUpdate, Count& count)
{
    if (result.differences.empty())
        return count.passed;
    const bool isStopped = std::ranges::any_of(result.differences, &Difference::isStop);
    return isUpdate && !isStopped ? count.updated : count.failed;
}

void TestFile(const std::string& file, bool isUpdate, Count& count)
{
    const std::string content = ReadUtf8File(file);
    CaseUpdate all;
    for (const GoldenCase& one : ReadCases(file, commandline::LinesOf(content)))
    {
        CaseResult result = RunCase(one);
        ++PlaceFor(result, isUpdate, count);
        all.replaced.merge(result.update.replaced);
        all.insertions.merge(result.update.insertions);
        for (const Difference& difference : result.differences)
            Print(one, difference);
    }
    if (isUpdate && (!all.replaced.empty() || !all.insertions.empty()))
        Update(file, content, all);
}

ExitCode TestAll(const Request& request)
{
    Count count;
    for (const std::string& operand : request.operands)
    {
        for (const std::string& file : FilesOf(operand))
        {
            try
            {
                TestFile(file, request.Has("--update"), count);
            }
            catch (const script::FileError& error)
            {
                PrintLine(error.what());
                ++count.notUnderstood;
            }
        }
    }
    std::printf("%d passed, %d failed", count.passed, count.failed);
    if (request.Has("--update"))
        std::printf(", %d brought up to date", count.updated);
    if (count.notUnderstood != 0)
        std::printf(", %d files not understood", count.notUnderstood);
    std::printf("\n");
    if (count.notUnderstood != 0)
        return notUnderstood;
    return count.failed == 0 ? good : found;
}

ExitCode Test(const Request& request)
{
    return DoWatching(request, TestAll);
}

} // namespace

Command TestCommand()
{
    constexpr size_t many = 10000;
    return {{"test",
             "FOLDER|FILE...",
             1,
             many,
             "run the test cases NAME.case, and print what differs",
             {{"--update", nullptr, false, "write what was seen into the files in place of what was expected"},
              watchOption}},
            Test};
}

} // namespace lytdlg
