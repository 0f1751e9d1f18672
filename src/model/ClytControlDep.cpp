#include "model/ClytControlDep.h"

#include "model/ClytControl.h"

bool ClytControlDep::IsEventRule() const
{
    return stateWord.GetMeaning() == ClytState::Clear || stateWord.GetMeaning() == ClytState::Fill;
}

int ClytControlDep::AllHold(const ClytControlMap& controls) const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        const ClytCtrlValList& condition = *conditions.GetNext(place);
        ClytControl* control = nullptr;
        if (!controls.Lookup(condition.GetName(), control))
            continue;
        if (control->IsActive() == 0 && !control->IsExemptFromActive())
            return 0;
        const CStringList& values = condition.GetValues();
        if (values.IsEmpty())
            continue;
        // The last value decides, so a "NOTNULL" further to the front is a value like any other; and conditions behind
        // this one are not looked at.
        if (lytMeans<ClytValueWord::NotNull>(values.GetTail()))
            return control->HasContent();
        if (condition.Contains(control->GetValue()) == 0)
            return 0;
    }
    return 1;
}

int ClytControlDep::AnyChanged(const ClytControlMap& controls) const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        ClytControl* control = nullptr;
        if (!controls.Lookup(conditions.GetNext(place)->GetName(), control))
            return 0;
        if (control->IsChanged() != 0)
            return 1;
    }
    return 0;
}

void ClytControlDep::SaveStates(const ClytControlMap& controls) const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        ClytControl* control = nullptr;
        if (controls.Lookup(conditions.GetNext(place)->GetName(), control))
            control->SaveState();
    }
}
