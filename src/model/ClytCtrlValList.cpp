#include "model/ClytCtrlValList.h"

#include "model/ClytControl.h"
#include "model/ClytWords.h"

ClytCtrlValList::ClytCtrlValList() = default;

ClytCtrlValList::ClytCtrlValList(const CString& name, const ClytSpan& place)
{
    SetName(name, place);
}

void ClytCtrlValList::SetName(const CString& name, const ClytSpan& place)
{
    controlName = name;
    span = place;
}

void ClytCtrlValList::CopyFrom(const ClytCtrlValList& other)
{
    if (this == &other)
        return;
    SetName(other.controlName, other.span);
    control = other.control;
    asksForContent = other.asksForContent;
    values.RemoveAll();
    for (const CString& value : other.values)
        values.AddTail(value);
}

void ClytCtrlValList::Bind(const ClytControlMap& controls)
{
    control = nullptr;
    controls.Lookup(controlName, control);
    asksForContent = !values.IsEmpty() && lytMeans<ClytValueWord::NotNull>(values.GetTail());
}

int ClytCtrlValList::Contains(const CString& value) const
{
    for (const CString& listed : values)
    {
        if (listed == value || (value.IsEmpty() && lytMeans<ClytValueWord::Null>(listed)))
            return 1;
    }
    return 0;
}

void lytBindConditions(const ClytConditions& conditions, const ClytControlMap& controls)
{
    for (ClytCtrlValList& condition : conditions)
        condition.Bind(controls);
}
