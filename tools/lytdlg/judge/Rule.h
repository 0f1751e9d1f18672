// The rules of `check`. Their words and examples are on the page docs/lytdlg-rules.md, which is part of
// the program; the sources call them by name.
#pragma once

#include "lytdlg/judge/RuleNames.h"

#include <string>
#include <vector>

namespace lytdlg
{

enum class Level
{
    Error,   // the library refuses the file, or the dialog
    Warning, // it is ignored, or data gets lost or looks wrong
    Note     // it does no harm and no good
};

const char* WordOf(Level level);

struct Rule
{
    std::string id; // short words with hyphens
    Level level = Level::Error;
    std::string summary; // one sentence, for lists
    std::string reason;  // why it matters and what to do, for --explain
    // What is wrong and what would be right: lines for the description of the examples, each group under its section's
    // word; see Examples.h. In the library's code page.
    std::string wrong;
    std::string right;
};

// In the order of the page.
const std::vector<Rule>& Rules();
// Null when there is no rule of that id.
const Rule* FindRule(const std::string& id);

// The name of a rule. One that the page does not have does not compile.
class RuleName
{
public:
    consteval RuleName(const char* id)
    {
        while (ruleNames.at(m_index) != id)
            ++m_index;
    }
    const Rule& Get() const { return Rules()[m_index]; }

private:
    size_t m_index = 0;
};

// The rules as text: a list, one explained, and the page of them all.
std::string RuleList();
std::string Explanation(const Rule& rule);
std::string RulePage();
// The way out for somebody who has named a rule that does not exist.
std::string HintForRule(const std::string& id);

} // namespace lytdlg
