// The command that judges descriptions.
#include "commandline/Text.h"
#include "lytdlg/Commands.h"
#include "lytdlg/judge/FindingText.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace lytdlg
{

namespace
{

std::string ReadAll(std::istream& stream)
{
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw commandline::UsageError("\"" + path + "\" cannot be read; check its name and rights");
    return ReadAll(file);
}

// The descriptions that a path stands for: those of a folder in the order of their names, a file, or standard input.
std::vector<std::string> DescriptionsOf(const std::string& path)
{
    if (path == "-" || !std::filesystem::is_directory(path))
        return {path};
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(path))
    {
        if (entry.is_regular_file() && entry.path().extension() == ".dlg")
            found.push_back(entry.path().string());
    }
    std::ranges::sort(found);
    return found;
}

struct Counts
{
    int files = 0;
    int errors = 0;
    int warnings = 0;
    int notes = 0;
};

void Count(const Findings& findings, Counts& counts)
{
    ++counts.files;
    for (const Finding& finding : findings.All())
    {
        switch (finding.rule->level)
        {
        case Level::Error: ++counts.errors; break;
        case Level::Warning: ++counts.warnings; break;
        default: ++counts.notes;
        }
    }
}

void JudgeFile(const std::string& path, const Request& request, Counts& counts)
{
    const std::string bytes = path == "-" ? ReadAll(std::cin) : ReadFile(path);
    const Description description(path, bytes, request.Texts("--define"));
    Surroundings surroundings;
    surroundings.folder = path == "-" ? "" : std::filesystem::path(path).parent_path().string();
    surroundings.partners = request.Texts("--partners");
    const Findings findings = Judge(description, surroundings);
    for (const Finding& finding : findings.All())
        std::fputs(TextOf(finding, description, false).c_str(), stdout);
    Count(findings, counts);
}

std::string Counted(int count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

ExitCode Check(const Request& request)
{
    Counts counts;
    for (const std::string& operand : request.operands)
    {
        for (const std::string& path : DescriptionsOf(operand))
            JudgeFile(path, request, counts);
    }
    std::printf("%s judged: %s, %s, %s\n", Counted(counts.files, "description", "descriptions").c_str(),
                Counted(counts.errors, "error", "errors").c_str(),
                Counted(counts.warnings, "warning", "warnings").c_str(),
                Counted(counts.notes, "note", "notes").c_str());
    return counts.errors + counts.warnings == 0 ? good : found;
}

} // namespace

Command CheckCommand()
{
    return {{"check",
             "PATH...",
             1,
             SIZE_MAX,
             "judge descriptions (files, folders, - for standard input): all findings, a line each",
             {{"--define", "WORD", false, "read the lines that this define switches on; may be given more than once"},
              {"--partners", "FOLDER", false, "a folder that holds partner libraries; may be given more than once"}}},
            Check};
}

} // namespace lytdlg
