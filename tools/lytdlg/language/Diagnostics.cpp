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

bool IsAmong(const std::vector<Finding>& findings, const Finding& wanted)
{
    return std::ranges::any_of(findings, [&](const Finding& finding) { return AreOneFinding(finding, wanted); });
}

} // namespace

void Diagnostics::WillJudge(const std::string& path)
{
    for (std::deque<std::string>* waiting : {&m_unread, &m_untried})
    {
        std::erase(*waiting, path);
        waiting->push_front(path);
        for (const std::string& other : m_workspace.OpenPaths())
        {
            const bool isNeighbour = Workspace::DialogFolderOf(other) == Workspace::DialogFolderOf(path);
            if (isNeighbour && std::ranges::find(*waiting, other) == waiting->end())
                waiting->push_back(other);
        }
    }
}

void Diagnostics::WillJudgeAll()
{
    const std::vector<std::string> paths = m_workspace.OpenPaths();
    m_unread.assign(paths.begin(), paths.end());
    std::ranges::copy_if(m_included, std::back_inserter(m_unread),
                         [&](const std::string& path) { return m_workspace.Find(path) == nullptr; });
    m_untried = m_unread;
}

void Diagnostics::ForgetWaiting()
{
    m_unread.clear();
    m_untried.clear();
}

std::set<std::string> Diagnostics::JudgeNext(const GiveUpQuestion& isGivenUp)
{
    const bool isTried = m_unread.empty();
    std::deque<std::string>& waiting = isTried ? m_untried : m_unread;
    const std::string path = std::move(waiting.front());
    waiting.pop_front();
    try
    {
        return isTried ? Try(path, isGivenUp) : Read(path);
    }
    catch (const JudgementGivenUp&)
    {
        waiting.push_front(path);
        return {};
    }
}

std::set<std::string> Diagnostics::Include(const std::string& path)
{
    m_included.insert(path);
    std::set<std::string> concerned = Read(path);
    concerned.merge(Try(path));
    return concerned;
}

bool Diagnostics::IsJudged(const std::string& path) const
{
    return m_workspace.Find(path) != nullptr || m_included.contains(path);
}

std::vector<Finding> Diagnostics::FindingsIn(const std::string& path, bool isTried,
                                             const GiveUpQuestion& isGivenUp) const
{
    // An editor does not show in which encoding a file is.
    const std::unique_ptr<Description> saved = m_workspace.SavedOtherwise(path);
    const Description& description = saved ? *saved : m_workspace.DescriptionAt(path);
    const Surroundings& surroundings = m_workspace.SurroundingsAt(path);
    Findings findings = isTried ? Judge(description, surroundings, isGivenUp) : JudgeUntried(description, surroundings);
    findings.Fold();
    for (Finding& finding : findings.All())
        finding.path = PlainPath(finding.path);
    return std::move(findings.All());
}

// What trials have found before stays until the dialog is tried again.
std::set<std::string> Diagnostics::Read(const std::string& path)
{
    Judgement judgement;
    if (IsJudged(path) && KindOfText(path) == TextKind::Cases)
        judgement.all = FindingsInCases(m_workspace, path);
    if (IsJudged(path) && KindOfText(path) == TextKind::Description)
    {
        judgement = {FindingsIn(path, false), m_judgements[path].tried};
        std::ranges::copy(judgement.tried, std::back_inserter(judgement.all));
    }
    return Keep(path, std::move(judgement));
}

std::set<std::string> Diagnostics::Try(const std::string& path, const GiveUpQuestion& isGivenUp)
{
    if (!IsJudged(path) || KindOfText(path) != TextKind::Description)
        return {};
    const Judgement before = m_judgements[path];
    Judgement judgement = {FindingsIn(path, true, isGivenUp), {}};
    const auto isTried = [&](const Finding& finding)
    { return !IsAmong(before.all, finding) || IsAmong(before.tried, finding); };
    std::ranges::copy_if(judgement.all, std::back_inserter(judgement.tried), isTried);
    const bool isSame = std::ranges::equal(judgement.all, before.all, AreOneFinding);
    const std::set<std::string> concerned = Keep(path, std::move(judgement));
    return isSame ? std::set<std::string>() : concerned;
}

// Gives the files in which there are findings now, and those in which there were some.
std::set<std::string> Diagnostics::Keep(const std::string& path, Judgement judgement)
{
    std::set<std::string> concerned = {path};
    const auto note = [&](const std::vector<Finding>& findings)
    {
        for (const Finding& finding : findings)
            concerned.insert(finding.path.empty() ? path : finding.path);
    };
    note(m_judgements[path].all);
    note(judgement.all);
    if (judgement.all.empty())
        m_judgements.erase(path);
    else
        m_judgements[path] = std::move(judgement);
    return concerned;
}

std::vector<Finding> Diagnostics::Of(const std::string& path) const
{
    std::vector<Finding> all;
    for (const auto& [judged, judgement] : m_judgements)
    {
        for (const Finding& finding : judgement.all)
        {
            const bool isHere = (finding.path.empty() ? judged : finding.path) == path;
            if (isHere && !IsAmong(all, finding))
                all.push_back(finding);
        }
    }
    return all;
}

} // namespace lytdlg
