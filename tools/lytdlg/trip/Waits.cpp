#include "lytdlg/trip/Waits.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Lists.h"

namespace lytdlg
{

Waits::Waits(const Description& description)
{
    for (const ClytControlDep* rule : Records(description.rules))
    {
        const ClytState word = rule->stateWord.GetMeaning();
        if (word == ClytState::Active || word == ClytState::Visible)
            m_rules[rule->controlName.GetString()].push_back(rule);
    }
}

const StateRules& Waits::RulesOf(const std::string& name) const
{
    static const StateRules none;
    const auto found = m_rules.find(name);
    return found != m_rules.end() ? found->second : none;
}

std::set<std::string> Waits::WaitedForBy(const std::string& name) const
{
    std::set<std::string> waited;
    std::vector<std::string> open = {name};
    while (!open.empty())
    {
        const std::string next = open.back();
        open.pop_back();
        for (const std::string& asked : AskedBy(next))
        {
            if (waited.insert(asked).second)
                open.push_back(asked);
        }
    }
    return waited;
}

std::vector<std::string> Waits::AskedBy(const std::string& name) const
{
    std::vector<std::string> names;
    for (const ClytControlDep* rule : RulesOf(name))
    {
        for (const ClytCtrlValList* condition : Records(rule->conditions))
            names.emplace_back(condition->GetName().GetString());
    }
    return names;
}

} // namespace lytdlg
