#include "lytdlg/judge/Baseline.h"

#include "commandline/CommandLine.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace lytdlg
{

namespace
{

constexpr const char* baselineTitle = "lytdlg baseline 1\n";

std::string KeyOf(const Finding& finding, const Description& description)
{
    std::string path = PathOf(finding, description);
    std::ranges::replace(path, '\\', '/');
    const std::string& line = LineOf(finding, description);
    const size_t start = std::min(line.find_first_not_of(" \t"), line.size());
    return finding.rule->id + '\t' + path + '\t' + line.substr(start, line.find_last_not_of(" \t") + 1 - start);
}

bool IsBaseline(const std::string& path)
{
    return ReadWholeFile(PathOf(path)).value_or("").starts_with(baselineTitle);
}

} // namespace

Baseline::Baseline(const std::string& path)
{
    if (!IsBaseline(path))
        throw commandline::UsageError("\"" + path +
                                      "\" is no file of known findings; write one with --write-baseline FILE");
    std::istringstream lines(ReadWholeFile(PathOf(path)).value_or(""));
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line))
        ++m_known[line];
}

void Baseline::Subtract(const Description& description, Findings& findings)
{
    findings.Remove(
        [&](const Finding& finding)
        {
            const auto known = m_known.find(KeyOf(finding, description));
            return known != m_known.end() && known->second-- > 0;
        });
}

void Baseline::Add(const Description& description, const Findings& findings)
{
    for (const Finding& finding : findings.All())
        ++m_known[KeyOf(finding, description)];
}

void Baseline::Write(const std::string& path) const
{
    if (std::filesystem::exists(PathOf(path)) && !IsBaseline(path))
        throw commandline::UsageError("\"" + path +
                                      "\" is no file of known findings, and stays as it is; choose another name");
    std::string content = baselineTitle;
    for (const auto& [line, count] : m_known)
    {
        for (int written = 0; written < count; ++written)
            content += line + '\n';
    }
    WriteWholeFile(PathOf(path), content);
}

} // namespace lytdlg
