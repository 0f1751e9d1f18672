#include "model/ClytDialogInput.h"

int ClytDialogInput::ConditionsHold(const ClytControlMap& controls) const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        if (conditions.GetNext(place)->IsSatisfied(controls) != 0)
            return 1;
    }
    return 0;
}
