#include "model/ClytDialogInput.h"

#include "model/ClytConditionTest.h"

void ClytDialogInput::Bind(const ClytControlMap& controls)
{
    lytBindConditions(conditions, controls);
    scanRule.Bind(controls);
}

int ClytDialogInput::ConditionsHold() const
{
    return lytConditionsHold(conditions, ClytRuleKind::Input, span) ? 1 : 0;
}
