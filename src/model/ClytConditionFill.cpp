#include "model/ClytConditionFill.h"

#include "base/Words.h"

void ClytConditionFill::Bind(const ClytControlMap& controls)
{
    for (POSITION place = fills.GetHeadPosition(); place != nullptr;)
        fills.GetNext(place)->Bind(controls);
}

int ClytConditionFill::Apply(const CString& piece) const
{
    if (!Holds(piece))
        return 0;
    for (POSITION place = fills.GetHeadPosition(); place != nullptr;)
    {
        const ClytControlFill& fill = *fills.GetNext(place);
        if (!fill.controlName.IsEmpty())
            fill.Apply(piece);
    }
    return 1;
}

bool ClytConditionFill::Holds(const CString& piece) const
{
    if (values.IsEmpty())
        return true;
    for (POSITION place = values.GetHeadPosition(); place != nullptr;)
    {
        if (lytSameWord(values.GetNext(place), piece))
            return true;
    }
    return false;
}
