#include "model/ClytConditionTest.h"

#include "environment/ClytException.h"
#include "model/ClytControl.h"

namespace
{

// What the result of a test means for the rule.
enum Verdict
{
    next, // the next condition decides
    holds,
    fails,
    raises,
    never = fails // this kind of rule has no such result
};

struct Verdicts
{
    Verdict ofResult[8]; // in the order of ClytTested
    bool atEnd;          // when no condition has decided
};

constexpr Verdicts verdicts[] = {
    // Holds, UnknownControl, Inactive, NotListed, HasContent, IsEmpty, Changed, Unchanged
    {{next, next, fails, fails, holds, fails, never, never}, true},   // state
    {{never, fails, never, never, never, never, holds, next}, false}, // event
    {{next, raises, fails, fails, never, never, never, never}, true}, // output
    {{holds, next, never, next, never, never, never, never}, false},  // input
};

ClytTested TestValue(const ClytCtrlValList& condition, ClytControl& control, bool isState)
{
    if (control.IsActive() == 0 && !(isState && control.IsExemptFromActive()))
        return ClytTested::Inactive;
    if (condition.GetValues().IsEmpty())
        return ClytTested::Holds;
    // The last value decides, so an earlier "NOTNULL" is a value like any other.
    if (isState && condition.AsksForContent())
        return control.HasContent() != 0 ? ClytTested::HasContent : ClytTested::IsEmpty;
    return condition.Contains(control.GetValue()) != 0 ? ClytTested::Holds : ClytTested::NotListed;
}

} // namespace

ClytTested lytTest(const ClytCtrlValList& condition, ClytRuleKind kind)
{
    ClytControl* control = condition.GetControl();
    if (control == nullptr)
        return ClytTested::UnknownControl;
    switch (kind)
    {
    case ClytRuleKind::Event: return control->IsChanged() != 0 ? ClytTested::Changed : ClytTested::Unchanged;
    case ClytRuleKind::Input:
        return control->HasValueIn(condition.GetValues()) != 0 ? ClytTested::Holds : ClytTested::NotListed;
    case ClytRuleKind::State:
    case ClytRuleKind::Output: break;
    }
    return TestValue(condition, *control, kind == ClytRuleKind::State);
}

bool lytConditionsHold(const ClytConditions& conditions, ClytRuleKind kind, const ClytSpan& rule)
{
    const Verdicts& ofKind = verdicts[static_cast<size_t>(kind)];
    for (const ClytCtrlValList& condition : conditions)
    {
        const ClytTested result = lytTest(condition, kind);
        // A statement of the input is reported with its jump.
        if (kind != ClytRuleKind::Input)
            lytTell(&ClytObserver::ConditionTested, kind, rule, condition, result);
        const Verdict verdict = ofKind.ofResult[static_cast<size_t>(result)];
        if (verdict == raises)
            lytRaise(lytError("OutputControl"), CString(), condition.GetName());
        if (verdict != next)
            return verdict == holds;
    }
    return ofKind.atEnd;
}
