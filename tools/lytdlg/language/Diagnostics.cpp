#include "lytdlg/language/Diagnostics.h"

#include "lytdlg/language/FileWords.h"

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

void Diagnostics::WillJudge(const std::string& path)
{
    std::erase(m_waiting, path);
    m_waiting.push_front(path);
    for (const std::string& other : m_workspace.OpenPaths())
    {
        const bool isNeighbour = Workspace::DialogFolderOf(other) == Workspace::DialogFolderOf(path);
        if (isNeighbour && std::ranges::find(m_waiting, other) == m_waiting.end())
            m_waiting.push_back(other);
    }
}

void Diagnostics::WillJudgeAll()
{
    const std::vector<std::string> paths = m_workspace.OpenPaths();
    m_waiting.assign(paths.begin(), paths.end());
    std::ranges::copy_if(m_included, std::back_inserter(m_waiting),
                         [&](const std::string& path) { return m_workspace.Find(path) == nullptr; });
}

std::set<std::string> Diagnostics::JudgeNext()
{
    const std::string path = std::move(m_waiting.front());
    m_waiting.pop_front();
    return Judge(path);
}

std::set<std::string> Diagnostics::Include(const std::string& path)
{
    m_included.insert(path);
    return Judge(path);
}

std::set<std::string> Diagnostics::Judge(const std::string& path)
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
    const bool isJudged = m_workspace.Find(path) != nullptr || m_included.contains(path);
    if (isJudged && KindOfText(path) == TextKind::Cases)
        kept = FindingsInCases(m_workspace, path);
    if (isJudged && KindOfText(path) == TextKind::Description)
    {
        Findings findings = lytdlg::Judge(m_workspace.DescriptionAt(path), m_workspace.SurroundingsAt(path));
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
