#include "model/ClytDialogInput.h"

void ClytDialogInput::Bind(const ClytControlMap& controls)
{
    lytBindConditions(conditions, controls);
    scanRule.Bind(controls);
}

int ClytDialogInput::ConditionsHold() const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        if (conditions.GetNext(place)->IsSatisfied() != 0)
            return 1;
    }
    return 0;
}
