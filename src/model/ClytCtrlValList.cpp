#include "model/ClytCtrlValList.h"

#include "model/ClytControl.h"
#include "model/ClytWords.h"

void ClytCtrlValList::CopyFrom(const ClytCtrlValList& other)
{
    if (this == &other)
        return;
    SetName(other.controlName, other.span);
    values.RemoveAll();
    for (POSITION place = other.values.GetHeadPosition(); place != nullptr;)
        values.AddTail(other.values.GetNext(place));
}

int ClytCtrlValList::Contains(const CString& value) const
{
    for (POSITION place = values.GetHeadPosition(); place != nullptr;)
    {
        const CString& listed = values.GetNext(place);
        if (listed == value || (value.IsEmpty() && lytMeans<ClytValueWord::Null>(listed)))
            return 1;
    }
    return 0;
}

int ClytCtrlValList::IsSatisfied(const ClytControlMap& controls) const
{
    ClytControl* control = nullptr;
    if (!controls.Lookup(controlName, control))
        return 0;
    return control->HasValueIn(values);
}
