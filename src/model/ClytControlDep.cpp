#include "model/ClytControlDep.h"

#include "model/ClytControl.h"

void ClytControlDep::Bind(const ClytControlMap& controls)
{
    control = nullptr;
    controls.Lookup(controlName, control);
    lytBindConditions(conditions, controls);
}

bool ClytControlDep::IsEventRule() const
{
    return stateWord.GetMeaning() == ClytState::Clear || stateWord.GetMeaning() == ClytState::Fill;
}

int ClytControlDep::AllHold() const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        const ClytCtrlValList& condition = *conditions.GetNext(place);
        ClytControl* asked = condition.GetControl();
        if (asked == nullptr)
            continue;
        if (asked->IsActive() == 0 && !asked->IsExemptFromActive())
            return 0;
        const CStringList& values = condition.GetValues();
        if (values.IsEmpty())
            continue;
        // The last value decides, so a "NOTNULL" further to the front is a value like any other; and conditions behind
        // this one are not looked at.
        if (lytMeans<ClytValueWord::NotNull>(values.GetTail()))
            return asked->HasContent();
        if (condition.Contains(asked->GetValue()) == 0)
            return 0;
    }
    return 1;
}

int ClytControlDep::AnyChanged() const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        ClytControl* asked = conditions.GetNext(place)->GetControl();
        if (asked == nullptr)
            return 0;
        if (asked->IsChanged() != 0)
            return 1;
    }
    return 0;
}

void ClytControlDep::SaveStates() const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        if (ClytControl* asked = conditions.GetNext(place)->GetControl())
            asked->SaveState();
    }
}
