#include "model/ClytDialogInput.h"

#include "model/ClytConditionTest.h"

void ClytDialogInput::Bind(const ClytControlMap& controls)
{
    lytBindConditions(conditions, controls);
    scanRule.Bind(controls);
}

int ClytDialogInput::ConditionsHold() const
{
    const auto tellNothing = [](const ClytCtrlValList& /*condition*/, ClytTested /*result*/) {};
    return lytConditionsHold(conditions, ClytRuleKind::Input, tellNothing) ? 1 : 0;
}
