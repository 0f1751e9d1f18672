#include "model/ClytConditionFill.h"

#include "base/Words.h"

void ClytConditionFill::Bind(const ClytControlMap& controls)
{
    for (ClytControlFill& fill : fills)
        fill.Bind(controls);
}

int ClytConditionFill::Apply(const CString& piece) const
{
    if (!Holds(piece))
        return 0;
    for (const ClytControlFill& fill : fills)
    {
        if (!fill.controlName.IsEmpty())
            fill.Apply(piece);
    }
    return 1;
}

bool ClytConditionFill::Holds(const CString& piece) const
{
    if (values.IsEmpty())
        return true;
    for (const CString& value : values)
    {
        if (lytSameWord(value, piece))
            return true;
    }
    return false;
}
