// The findings on the open descriptions, kept until they are judged again, and what waits to be judged.
#pragma once

#include "lytdlg/language/Workspace.h"

#include <deque>
#include <set>

namespace lytdlg
{

class Diagnostics
{
public:
    // The workspace outlives this.
    explicit Diagnostics(const Workspace& workspace) : m_workspace(workspace) {}

    // The text waits, and after it all open texts that its change concerns.
    void WillJudge(const std::string& path);
    void WillJudgeAll();
    void ForgetWaiting() { m_waiting.clear(); }
    bool IsWaiting() const { return !m_waiting.empty(); }
    // Judges the first text that waits. Gives the files whose findings may be others now: itself, and language files.
    std::set<std::string> JudgeNext();
    // From now on a description is judged that is not open, too.
    std::set<std::string> Include(const std::string& path);
    // What was found in a file, as `lytdlg check` reports it. What several descriptions find in a language file is there once.
    std::vector<Finding> Of(const std::string& path) const;

private:
    std::set<std::string> Judge(const std::string& path);

    const Workspace& m_workspace;
    std::deque<std::string> m_waiting;                      // paths
    std::map<std::string, std::vector<Finding>> m_findings; // by the description that was judged
    std::set<std::string> m_included;
};

} // namespace lytdlg
