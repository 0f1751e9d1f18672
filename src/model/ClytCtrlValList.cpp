#include "model/ClytCtrlValList.h"

#include "model/ClytControl.h"
#include "model/ClytWords.h"

void ClytCtrlValList::CopyFrom(const ClytCtrlValList& other)
{
    if (this == &other)
        return;
    SetName(other.controlName, other.span);
    control = other.control;
    asksForContent = other.asksForContent;
    values.RemoveAll();
    for (POSITION place = other.values.GetHeadPosition(); place != nullptr;)
        values.AddTail(other.values.GetNext(place));
}

void ClytCtrlValList::Bind(const ClytControlMap& controls)
{
    control = nullptr;
    controls.Lookup(controlName, control);
    asksForContent = !values.IsEmpty() && lytMeans<ClytValueWord::NotNull>(values.GetTail());
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

void lytBindConditions(const ClytConditions& conditions, const ClytControlMap& controls)
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
        conditions.GetNext(place)->Bind(controls);
}
