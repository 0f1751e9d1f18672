// What a rule reports about a place of a description, and what collects it.
#pragma once

#include "base/ClytSpan.h"
#include "lytdlg/judge/Rule.h"

#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// What fixes a finding: a text in place of another one, in the file that the finding is in.
struct Fix
{
    ClytSpan place;   // when nothing takes the place of all that a line holds, the line goes with it
    std::string text; // with a line feed for each line end
    // What it replaces is refused or has no effect, and can be meant in one way only.
    bool isSafe = false;
};

struct Finding
{
    Finding& FixSafely(const ClytSpan& at, std::string by);
    Finding& FixPerhaps(const ClytSpan& at, std::string by);

    const Rule* rule = nullptr;
    ClytSpan place;
    std::string message;
    std::string hint;
    std::string number; // of the library's message; empty when it shows none
    std::string path;   // of the file that the place is in; empty for the description itself
    std::string line;   // of that other file
    std::optional<Fix> fix;
    std::vector<Finding> more; // of the same rule in the same file, reported together with this one
};

// Whether a file has one such finding for all its lines, because it was saved in another encoding.
bool IsOfEncoding(const Rule& rule);

// The message, and where there is more of the kind.
std::string WholeMessageOf(const Finding& finding);

// Collects the findings on one description.
class Findings
{
public:
    Finding& Add(RuleName rule, const ClytSpan& place, std::string message, std::string hint);
    const std::vector<Finding>& All() const { return m_findings; }
    // Takes away what the predicate is true for, and says how many there were.
    template <class PREDICATE>
    size_t Remove(PREDICATE predicate)
    {
        return std::erase_if(m_findings, predicate);
    }
    std::vector<Finding>& All() { return m_findings; }
    // Makes one finding of the notes of a rule on a file, and of all that comes from its encoding. They are sorted.
    void Fold();
    // By place, and at one place the graver first; what was reported twice for a place stays once.
    void Sort();

private:
    std::vector<Finding> m_findings;
};

} // namespace lytdlg
