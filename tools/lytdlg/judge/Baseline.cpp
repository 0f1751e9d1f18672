#include "lytdlg/judge/Baseline.h"

#include "commandline/CommandLine.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>
#include <fstream>

namespace lytdlg
{

namespace
{

constexpr const char* baselineTitle = "lytdlg baseline 1";

std::string KeyOf(const Finding& finding, const Description& description)
{
    std::string path = PathOf(finding, description);
    std::ranges::replace(path, '\\', '/');
    const std::string& line = LineOf(finding, description);
    const size_t start = std::min(line.find_first_not_of(" \t"), line.size());
    return std::string(finding.rule->id) + '\t' + path + '\t' +
           line.substr(start, line.find_last_not_of(" \t") + 1 - start);
}

} // namespace

Baseline::Baseline(const std::string& path)
{
    std::ifstream file(PathOf(path), std::ios::binary);
    std::string line;
    if (!std::getline(file, line) || line != baselineTitle)
        throw commandline::UsageError("\"" + path +
                                      "\" is no file of known findings; write one with --write-baseline FILE");
    while (std::getline(file, line))
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
    std::ofstream file(PathOf(path), std::ios::binary);
    file << baselineTitle << '\n';
    for (const auto& [line, count] : m_known)
    {
        for (int written = 0; written < count; ++written)
            file << line << '\n';
    }
    if (!file.flush())
        throw commandline::UsageError("\"" + path + "\" cannot be written; check its folder and rights");
}

} // namespace lytdlg
