#include "model/ClytDialogOutput.h"

void ClytDialogOutput::Bind(const ClytControlMap& controls)
{
    lytBindConditions(conditions, controls);
    itemControls.clear();
    for (int index = 0; index < items.GetCount(); ++index)
    {
        ClytControl* control = nullptr;
        controls.Lookup(items[index], control);
        itemControls.push_back(control);
    }
}
