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
    return ConditionsHold(ClytRuleKind::State);
}

int ClytControlDep::AnyChanged() const
{
    return ConditionsHold(ClytRuleKind::Event);
}

int ClytControlDep::ConditionsHold(ClytRuleKind kind) const
{
    const auto tell = [this](const ClytCtrlValList& condition, ClytTested result)
    { lytTell(&ClytObserver::ConditionTested, *this, condition, result); };
    return lytConditionsHold(conditions, kind, tell) ? 1 : 0;
}
