// What there is to say about a place of a description, and who collects it.
#pragma once

#include "base/ClytSpan.h"
#include "lytdlg/judge/Rule.h"

#include <string>
#include <vector>

namespace lytdlg
{

struct Finding
{
    const Rule* rule = nullptr;
    ClytSpan place;
    std::string message;
    std::string hint;
    std::string number; // of the library's message; empty when it shows none
    std::string path;   // of the file that the place is in; empty for the description itself
    std::string line;   // of that other file
};

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
    // By place, and at one place the graver first; what was said twice of a place stays once.
    void Sort();

private:
    std::vector<Finding> m_findings;
};

} // namespace lytdlg
