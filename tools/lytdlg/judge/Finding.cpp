#include "lytdlg/judge/Finding.h"

#include <algorithm>
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

Finding& Findings::Add(RuleName rule, const ClytSpan& place, std::string message, std::string hint)
{
    return m_findings.emplace_back(Finding{&rule.Get(), place, std::move(message), std::move(hint), "", "", ""});
}

void Findings::Sort()
{
    std::ranges::sort(m_findings, {}, OrderOf);
    const auto isTwice = [](const Finding& left, const Finding& right) { return OrderOf(left) == OrderOf(right); };
    m_findings.erase(std::unique(m_findings.begin(), m_findings.end(), isTwice), m_findings.end());
}

} // namespace lytdlg
