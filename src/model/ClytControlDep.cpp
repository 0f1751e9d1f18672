#include "model/ClytControlDep.h"

#include "model/ClytControl.h"
#include "model/ClytObserver.h"

namespace
{

ClytTested TestState(const ClytCtrlValList& condition)
{
    ClytControl* control = condition.GetControl();
    if (control == nullptr)
        return ClytTested::UnknownControl;
    if (control->IsActive() == 0 && !control->IsExemptFromActive())
        return ClytTested::Inactive;
    if (condition.GetValues().IsEmpty())
        return ClytTested::Holds;
    // The last value decides, so an earlier "NOTNULL" is a value like any other.
    if (condition.AsksForContent())
        return control->HasContent() != 0 ? ClytTested::HasContent : ClytTested::IsEmpty;
    return condition.Contains(control->GetValue()) != 0 ? ClytTested::Holds : ClytTested::NotListed;
}

ClytTested TestChange(const ClytCtrlValList& condition)
{
    ClytControl* control = condition.GetControl();
    if (control == nullptr)
        return ClytTested::UnknownControl;
    return control->IsChanged() != 0 ? ClytTested::Changed : ClytTested::Unchanged;
}

} // namespace

void ClytControlDep::Bind(const ClytControlMap& controls)
{
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
        const ClytTested result = TestState(condition);
        if (lytObserver != nullptr)
            lytObserver->ConditionTested(*this, condition, result);
        if (result == ClytTested::HasContent)
            return 1;
        if (result != ClytTested::Holds && result != ClytTested::UnknownControl)
            return 0;
    }
    return 1;
}

int ClytControlDep::AnyChanged() const
{
    for (POSITION place = conditions.GetHeadPosition(); place != nullptr;)
    {
        const ClytCtrlValList& condition = *conditions.GetNext(place);
        const ClytTested result = TestChange(condition);
        if (lytObserver != nullptr)
            lytObserver->ConditionTested(*this, condition, result);
        if (result != ClytTested::Unchanged)
            return result == ClytTested::Changed ? 1 : 0;
    }
    return 0;
}
