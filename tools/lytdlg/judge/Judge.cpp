#include "lytdlg/judge/Judge.h"

#include "lytdlg/judge/SectionRules.h"

namespace lytdlg
{

const std::vector<Family>& Families()
{
    static const std::vector<Family> families = {SectionRules()};
    return families;
}

const Rule* FindRule(const std::string& id)
{
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
        {
            if (id == rule->id)
                return rule;
        }
    }
    return nullptr;
}

Findings Judge(const Description& description, const Surroundings& surroundings)
{
    Findings findings;
    for (const Family& family : Families())
        family.judge({description, surroundings, findings});
    findings.Sort();
    return findings;
}

} // namespace lytdlg
