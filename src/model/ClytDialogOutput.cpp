#include "model/ClytDialogOutput.h"

void ClytDialogOutput::Bind(const ClytControlMap& controls)
{
    lytBindConditions(conditions, controls);
    for (ClytOutputItem& item : items)
    {
        item.control = nullptr;
        controls.Lookup(item.text, item.control);
    }
}
