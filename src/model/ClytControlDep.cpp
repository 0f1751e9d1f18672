#include "model/ClytControlDep.h"

#include "model/ClytConditionTest.h"

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
    return lytConditionsHold(conditions, ClytRuleKind::State, span) ? 1 : 0;
}

int ClytControlDep::AnyChanged() const
{
    return lytConditionsHold(conditions, ClytRuleKind::Event, span) ? 1 : 0;
}
