#include "lytdlg/judge/Finding.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <tuple>

namespace lytdlg
{

namespace
{

auto OrderOf(const Finding& finding)
{
    return std::tuple(std::string_view(finding.path), finding.place.line, finding.place.column, finding.rule->level,
                      std::string_view(finding.rule->id), std::string_view(finding.message));
}

} // namespace

Finding& Finding::FixSafely(const ClytSpan& at, std::string by)
{
    fix = {at, std::move(by), true};
    return *this;
}

Finding& Finding::FixPerhaps(const ClytSpan& at, std::string by)
{
    fix = {at, std::move(by), false};
    return *this;
}

bool IsOfEncoding(const Rule& rule)
{
    return &rule == &RuleName("utf-8").Get() || &rule == &RuleName("text-bytes").Get();
}

std::string WholeMessageOf(const Finding& finding)
{
    constexpr size_t mostNamed = 30;
    std::vector<int> lines;
    for (const Finding& other : finding.more)
        lines.push_back(other.place.line);
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    std::string text;
    for (size_t index = 0; index < std::min(lines.size(), mostNamed); ++index)
        text += (index == 0 ? "" : ", ") + std::to_string(lines[index]);
    if (text.empty())
        return finding.message;
    return finding.message + "; and " + std::to_string(finding.more.size()) + " more in " +
           (lines.size() == 1 ? "line " : "lines ") + text + (lines.size() > mostNamed ? ", ..." : "");
}

Finding& Findings::Add(RuleName rule, const ClytSpan& place, std::string message, std::string hint)
{
    return m_findings.emplace_back(
        Finding{&rule.Get(), place, std::move(message), std::move(hint), "", "", "", {}, {}});
}

void Findings::Sort()
{
    std::ranges::sort(m_findings, {}, OrderOf);
    const auto isTwice = [](const Finding& left, const Finding& right) { return OrderOf(left) == OrderOf(right); };
    m_findings.erase(std::unique(m_findings.begin(), m_findings.end(), isTwice), m_findings.end());
}

void Findings::Fold()
{
    std::vector<Finding> all = std::move(m_findings);
    m_findings.clear();
    std::map<std::pair<std::string_view, std::string>, size_t> folded;
    for (Finding& finding : all)
    {
        const bool isFolded = finding.rule->level == Level::Note || IsOfEncoding(*finding.rule);
        const auto [first, isNew] = isFolded ? folded.try_emplace({finding.rule->id, finding.path}, m_findings.size())
                                             : std::pair(folded.end(), true);
        if (isNew)
            m_findings.push_back(std::move(finding));
        else
            m_findings[first->second].more.push_back(std::move(finding));
    }
}

} // namespace lytdlg
