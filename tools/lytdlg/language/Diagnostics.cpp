#include "lytdlg/language/Diagnostics.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

bool AreOneFinding(const Finding& left, const Finding& right)
{
    return left.rule == right.rule && left.place.line == right.place.line && left.place.column == right.place.column &&
           left.message == right.message;
}

} // namespace

std::set<std::string> Diagnostics::Judge(const Workspace& workspace, const std::string& path)
{
    std::set<std::string> concerned = {path};
    std::vector<Finding>& kept = m_findings[path];
    const auto note = [&]
    {
        for (const Finding& finding : kept)
            concerned.insert(finding.path.empty() ? path : finding.path);
    };
    note();
    kept.clear();
    const bool isJudged = workspace.Find(path) != nullptr || m_included.contains(path);
    if (isJudged && KindOfText(path) == TextKind::Description)
    {
        Findings findings = lytdlg::Judge(workspace.DescriptionAt(path), workspace.SurroundingsAt(path));
        findings.Fold();
        kept = std::move(findings.All());
        for (Finding& finding : kept)
            finding.path = PlainPath(finding.path);
    }
    note();
    if (kept.empty())
        m_findings.erase(path);
    return concerned;
}

std::vector<Finding> Diagnostics::Of(const std::string& path) const
{
    std::vector<Finding> all;
    for (const auto& [judged, findings] : m_findings)
    {
        for (const Finding& finding : findings)
        {
            const bool isHere = (finding.path.empty() ? judged : finding.path) == path;
            const auto isSame = [&](const Finding& known) { return AreOneFinding(known, finding); };
            if (isHere && std::ranges::none_of(all, isSame))
                all.push_back(finding);
        }
    }
    return all;
}

} // namespace lytdlg
