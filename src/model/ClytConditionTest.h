// How rules go through their conditions.
#pragma once

#include "environment/ClytException.h"
#include "model/ClytCtrlValList.h"
#include "model/ClytObserver.h"

// What has conditions.
enum class ClytRuleKind
{
    State,
    Event,
    Output,
    Input
};

// What the result of a test means for the rule.
enum class ClytVerdict
{
    Next, // the next condition decides
    Holds,
    Fails,
    Raises // 245
};

// Tests one condition as a rule of that kind does.
ClytTested lytTest(const ClytCtrlValList& condition, ClytRuleKind kind);
ClytVerdict lytVerdictOf(ClytRuleKind kind, ClytTested result);
// When no condition has decided.
bool lytHoldsAtEnd(ClytRuleKind kind);

// Goes through a rule's conditions until one decides, and reports each that was tested.
template <class TELL>
bool lytConditionsHold(const ClytConditions& conditions, ClytRuleKind kind, TELL tell)
{
    for (const ClytCtrlValList& condition : conditions)
    {
        const ClytTested result = lytTest(condition, kind);
        tell(condition, result);
        const ClytVerdict verdict = lytVerdictOf(kind, result);
        if (verdict == ClytVerdict::Raises)
            lytRaise(lytError("OutputControl"), CString(), condition.GetName());
        if (verdict != ClytVerdict::Next)
            return verdict == ClytVerdict::Holds;
    }
    return lytHoldsAtEnd(kind);
}
