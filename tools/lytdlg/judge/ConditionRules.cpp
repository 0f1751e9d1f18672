#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

struct Condition
{
    const Case& judged;
    const ClytControlDep& rule;
    const ClytCtrlValList& list;
    const Kind kind;

    std::string Name() const { return list.GetName().GetString(); }
    bool HasValues() const { return !list.GetValues().IsEmpty(); }
    ClytSpan PlaceOf(const std::string& value) const
    {
        return judged.description.PlaceOf(list.GetSpan().line, value,
                                          list.GetSpan().column + list.GetName().GetLength());
    }
};

// An item that the first statement of the kind adds is chosen; a check list never begins with a choice.
bool MayHaveNoChoice(const Description& description, const std::string& name, Kind kind)
{
    if (kind != Kind::List)
        return kind == Kind::CheckList;
    return GetsItems(description, name) || StatementsOf(description, name, Role::Item).empty() ||
           description.Index().FactsOf(name).isFilled;
}

void JudgeUnknown(const Condition& condition)
{
    const Description& description = condition.judged.description;
    AddUnknown(condition.judged, "condition-unknown", condition.list.GetSpan(),
               "no control is called " + InQuotes(condition.Name()) +
                   (condition.rule.IsEventRule() ? "; the rule looks no further" : "; the condition is passed over"),
               {condition.Name(), ControlNames(description), "use the name of a control"});
}

// True when the control cannot be asked for a value.
bool JudgeKind(const Condition& condition)
{
    const bool isEvent = condition.rule.IsEventRule();
    const bool isAsked = isEvent || (condition.HasValues() && !AsksForContent(condition.list));
    const bool isDefButton = condition.rule.stateWord.GetMeaning() == ClytState::DefButton;
    if (!isAsked || isDefButton || (lytTypeOf(condition.kind).hasValue && (condition.kind != Kind::Option || isEvent)))
        return false;
    const bool isOption = condition.kind == Kind::Option;
    condition.judged.findings.Add("condition-without-value", condition.list.GetSpan(),
                                  InQuotes(condition.Name()) + " is " + lytTypeOf(condition.kind).name +
                                      (isOption  ? ", which has its value checked or not"
                                       : isEvent ? ", which never changes"
                                                 : ", which has no value"),
                                  isOption ? "ask the group of the option" : "name a field, a list, a box or a group");
    return true;
}

void JudgeNotNull(const Condition& condition)
{
    const std::vector<std::string> values = ValuesAskedBy(condition.list);
    if (std::ranges::find(values, "NOTNULL") != values.end())
        condition.judged.findings.Add("notnull-not-last", condition.PlaceOf("NOTNULL"),
                                      "NOTNULL counts as the last value only", "write it last, or alone");
}

void JudgeAlways(const Condition& condition)
{
    if (AlwaysHolds(condition.judged.description, condition.list))
        condition.judged.findings.Add(
            "condition-always", condition.list.GetSpan(),
            condition.HasValues()
                ? "these are all values of " + InQuotes(condition.Name()) + ", and the condition always holds"
                : InQuotes(condition.Name()) + " is never disabled, and so the condition always holds",
            condition.HasValues() ? "name some of them, or delete the condition"
                                  : "write the values that it should have in brackets, or NOTNULL");
    if (AsksForContent(condition.list) && !lytTypeOf(condition.kind).isFilled && !lytTypeOf(condition.kind).isDefault)
        condition.judged.findings.Add(
            "condition-always", condition.list.GetSpan(),
            InQuotes(condition.Name()) + " is " + lytTypeOf(condition.kind).name + ", for which NOTNULL always holds",
            lytTypeOf(condition.kind).hasValue ? "name the values that it should have" : "name a field or a list");
}

void JudgeFocus(const Condition& condition)
{
    if (!condition.HasValues() || AsksForContent(condition.list) ||
        !MayHaveNoChoice(condition.judged.description, condition.Name(), condition.kind))
        return;
    if (condition.kind == Kind::CheckList)
        condition.judged.findings.Add("focus-held", condition.list.GetSpan(),
                                      InQuotes(condition.Name()) +
                                          " begins without a choice, and holds the focus until it has one",
                                      "ask NOTNULL only, or use a drop-down list");
    else
        condition.judged.findings.Add("list-asked", condition.list.GetSpan(),
                                      InQuotes(condition.Name()) + " may have no choice, and then moves the focus",
                                      "ask NOTNULL only, or use a drop-down list");
}

void JudgeCondition(const Condition& condition)
{
    if (condition.judged.description.FindControl(condition.Name()) == nullptr)
        JudgeUnknown(condition);
    if (condition.kind == Kind::Unknown || JudgeKind(condition))
        return;
    if (condition.rule.IsEventRule() || condition.rule.stateWord.GetMeaning() == ClytState::DefButton)
        return;
    JudgeValues(condition.judged, "condition-value", condition.list, ValueWords::NullAndNotNull);
    JudgeNotNull(condition);
    JudgeAlways(condition);
    JudgeFocus(condition);
}

void JudgeReached(const Case& judged, const ClytControlDep& rule)
{
    bool isDecided = false;
    for (const ClytCtrlValList* condition : Records(rule.conditions))
    {
        if (isDecided)
            judged.findings.Add("condition-not-reached", condition->GetSpan(),
                                "NOTNULL has decided before; this condition is not looked at",
                                "put the condition with NOTNULL last");
        isDecided = isDecided || AsksForContent(*condition);
    }
}

} // namespace

void ApplyConditionRules(const Case& judged)
{
    for (const ClytControlDep* rule : Records(judged.description.rules))
    {
        for (const ClytCtrlValList* condition : Records(rule->conditions))
            JudgeCondition(
                {judged, *rule, *condition, KindOfControl(judged.description, condition->GetName().GetString())});
        if (!rule->IsEventRule() && rule->stateWord.GetMeaning() != ClytState::DefButton)
            JudgeReached(judged, *rule);
    }
}

} // namespace lytdlg
