#include "model/ClytDialogOutput.h"

void ClytDialogOutput::Bind(const ClytControlMap& controls)
{
    lytBindConditions(conditions, controls);
    for (ClytOutputItem& item : items)
        controls.Lookup(item.text, item.control);
}
