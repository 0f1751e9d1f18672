// The state rules of each control, and which controls they wait for.
#pragma once

#include "lytdlg/judge/Description.h"

#include <map>
#include <set>

namespace lytdlg
{

using StateRules = std::vector<const ClytControlDep*>;

class Waits
{
public:
    explicit Waits(const Description& description);

    const std::map<std::string, StateRules>& All() const { return m_rules; }
    // None for a control without any.
    const StateRules& RulesOf(const std::string& name) const;
    // The controls that a control waits for, also by way of others; and the circle through it, if there is one: those that
    // wait for it in turn.
    std::set<std::string> WaitedForBy(const std::string& name) const;
    std::vector<std::string> AskedBy(const std::string& name) const;

private:
    std::map<std::string, StateRules> m_rules;
};

} // namespace lytdlg
