// The findings on the open texts, kept until they are judged again, and what waits to be judged. A text is judged twice: what
// follows from reading it is found at once, and what follows from trying the dialog when nothing else waits.
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
    void ForgetWaiting();
    bool IsWaiting() const { return IsReading() || !m_untried.empty(); }
    // Whether the next text is only read.
    bool IsReading() const { return !m_unread.empty(); }
    // Judges the first text that waits. Gives the files whose findings may be others now: itself, and language files. A text
    // whose trials are given up waits again.
    std::set<std::string> JudgeNext(const GiveUpQuestion& isGivenUp = {});
    // From now on a description is judged that is not open, too.
    std::set<std::string> Include(const std::string& path);
    // What was found in a file, as `lytdlg check` reports it. What several descriptions find in a language file is there once.
    std::vector<Finding> Of(const std::string& path) const;

private:
    struct Judgement
    {
        std::vector<Finding> all;
        std::vector<Finding> tried; // of these, what only trials find
    };

    bool IsJudged(const std::string& path) const;
    std::vector<Finding> FindingsIn(const std::string& path, bool isTried, const GiveUpQuestion& isGivenUp = {}) const;
    std::set<std::string> Read(const std::string& path);
    std::set<std::string> Try(const std::string& path, const GiveUpQuestion& isGivenUp = {});
    std::set<std::string> Keep(const std::string& path, Judgement judgement);

    const Workspace& m_workspace;
    std::deque<std::string> m_unread; // paths
    std::deque<std::string> m_untried;
    std::map<std::string, Judgement> m_judgements; // by the text that was judged
    std::set<std::string> m_included;
};

} // namespace lytdlg
