#include "model/ClytScanRule.h"

void ClytScanRule::Bind(const ClytControlMap& controls)
{
    for (ClytConditionFill& rule : rules)
        rule.Bind(controls);
}

void ClytScanRule::ApplyFills(const CString& piece) const
{
    bool isLeftOut = false;
    for (const ClytConditionFill& rule : rules)
        isLeftOut = !isLeftOut && rule.Apply(piece) == 0;
}
