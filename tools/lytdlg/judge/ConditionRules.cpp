#include "lytdlg/judge/ConditionRules.h"

#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>

namespace lytdlg
{

namespace
{
namespace condition_rules
{

constexpr Rule unknown = {"condition-unknown",
                          Level::Warning,
                          "A condition names a control that is not there.",
                          "A rule VISIBLE or ACTIVE passes the condition over; CLEAR and FILL look no further.",
                          "$DEPENDANCES\nUnit/ACTIVE = Nmae(NOTNULL)",
                          "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL)"};

constexpr Rule neverHeld = {
    "condition-value",
    Level::Warning,
    "A condition asks for a value that its control never holds.",
    "Values are compared letter by letter with the ON and OFF text of a check box, the values of\n"
    "options, or those of a list's items. NULL and NOTNULL are written in capitals.",
    "$DEPENDANCES\nUnit/ACTIVE = Pictures(Q)",
    "$DEPENDANCES\nUnit/ACTIVE = Pictures(P)"};

constexpr Rule noValue = {
    "condition-without-value",
    Level::Warning,
    "A condition asks a control that has no value of its own.",
    "Texts, frames and buttons have no value: asking shows message 201. An option answers with its own\n"
    "value, checked or not: ask its group. For CLEAR and FILL none of them ever changes, except an option.",
    "$DEPENDANCES\nUnit/ACTIVE = Short(s)",
    "$DEPENDANCES\nUnit/ACTIVE = Order(s)"};

constexpr Rule alwaysHeld = {
    "condition-always",
    Level::Warning,
    "A condition always holds, whatever the user does.",
    "NOTNULL asks whether a field or a list is empty. A check box, an option group, a text, a frame and a\n"
    "button never are: ask for the value. In brackets name only some of the values, and not all. Without\n"
    "brackets a condition only asks whether the control is enabled.",
    "$DEPENDANCES\nUnit/ACTIVE = Pictures(NOTNULL)",
    "$DEPENDANCES\nUnit/ACTIVE = Pictures(P)"};

constexpr Rule notLast = {
    "notnull-not-last",
    Level::Warning,
    "NOTNULL is not the last value in its brackets.",
    "Only as the last value NOTNULL asks whether a control holds anything. Further to the front it is a\n"
    "value like any other.",
    "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL, a)",
    "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL)"};

constexpr Rule notReached = {"condition-not-reached",
                             Level::Warning,
                             "A condition stands after one with NOTNULL, and is not looked at.",
                             "NOTNULL decides at once. Put it last on the line.",
                             "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL), Pictures(P)",
                             "$DEPENDANCES\nUnit/ACTIVE = Pictures(P), Name(NOTNULL)"};

constexpr Rule movesFocus = {
    "list-asked",
    Level::Warning,
    "A condition asks for the value of a list that may have no choice.",
    "Reading the value of a list without a choice moves the focus there. NOTNULL does not read it.",
    "$DEPENDANCES\nUnit/ACTIVE = Rooms(a)",
    "$DEPENDANCES\nUnit/ACTIVE = Rooms(NOTNULL)"};

constexpr Rule holdsFocus = {
    "focus-held",
    Level::Warning,
    "A condition asks for the value of a check list, which then holds the focus.",
    "A check list begins without a choice. As long as it has none, each run of the rules that reads its value\n"
    "moves the focus there: the user can type in no other control. NOTNULL does not read it.",
    "$DEPENDANCES\nUnit/ACTIVE = Parts(\"\")",
    "$DEPENDANCES\nUnit/ACTIVE = Parts(NOTNULL)"};

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

// An item that the first statement of the kind adds stands chosen; a check list never begins with a choice.
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
    condition.judged.findings.Add(
        unknown, condition.list.GetSpan(),
        "no control is called " + InQuotes(condition.Name()) +
            (condition.rule.IsEventRule() ? "; the rule looks no further" : "; the condition is passed over"),
        MeantOr(condition.Name(), ControlNames(description), "use the name of a control"));
}

// True when the control cannot be asked for a value.
bool JudgeKind(const Condition& condition)
{
    const bool isEvent = condition.rule.IsEventRule();
    const bool isAsked = isEvent || (condition.HasValues() && !AsksForContent(condition.list));
    const bool isDefButton = condition.rule.stateWord.GetMeaning() == ClytState::DefButton;
    if (!isAsked || isDefButton || (HasValue(condition.kind) && (condition.kind != Kind::Option || isEvent)))
        return false;
    const bool isOption = condition.kind == Kind::Option;
    condition.judged.findings.Add(noValue, condition.list.GetSpan(),
                                  InQuotes(condition.Name()) + " is " + NameOf(condition.kind) +
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
        condition.judged.findings.Add(notLast, condition.PlaceOf("NOTNULL"), "NOTNULL counts as the last value only",
                                      "write it last, or alone");
}

void JudgeAlways(const Condition& condition)
{
    if (AlwaysHolds(condition.judged.description, condition.list))
        condition.judged.findings.Add(
            alwaysHeld, condition.list.GetSpan(),
            condition.HasValues()
                ? "these are all values of " + InQuotes(condition.Name()) + ", and the condition always holds"
                : InQuotes(condition.Name()) + " is never disabled, and so the condition always holds",
            condition.HasValues() ? "name some of them, or delete the condition"
                                  : "write the values that it should have in brackets, or NOTNULL");
    if (AsksForContent(condition.list) && !HasItems(condition.kind) && condition.kind != Kind::Field &&
        !IsDefault(condition.kind))
        condition.judged.findings.Add(
            alwaysHeld, condition.list.GetSpan(),
            InQuotes(condition.Name()) + " is " + NameOf(condition.kind) + ", for which NOTNULL always holds",
            HasValue(condition.kind) ? "name the values that it should have" : "name a field or a list");
}

void JudgeFocus(const Condition& condition)
{
    if (!condition.HasValues() || AsksForContent(condition.list) ||
        !MayHaveNoChoice(condition.judged.description, condition.Name(), condition.kind))
        return;
    if (condition.kind == Kind::CheckList)
        condition.judged.findings.Add(holdsFocus, condition.list.GetSpan(),
                                      InQuotes(condition.Name()) +
                                          " begins without a choice, and holds the focus until it has one",
                                      "ask NOTNULL only, or use a drop-down list");
    else
        condition.judged.findings.Add(movesFocus, condition.list.GetSpan(),
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
    JudgeValues(condition.judged, neverHeld, condition.list, ValueWords::NullAndNotNull);
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
            judged.findings.Add(notReached, condition->GetSpan(),
                                "NOTNULL has decided before; this condition is not looked at",
                                "put the condition with NOTNULL last");
        isDecided = isDecided || AsksForContent(*condition);
    }
}

} // namespace condition_rules
} // namespace

Family ConditionRules()
{
    using namespace condition_rules;
    return {{&unknown, &neverHeld, &noValue, &alwaysHeld, &notLast, &notReached, &movesFocus, &holdsFocus},
            [](const Case& judged)
            {
                for (const ClytControlDep* rule : Records(judged.description.rules))
                {
                    for (const ClytCtrlValList* condition : Records(rule->conditions))
                        JudgeCondition({judged, *rule, *condition,
                                        KindOfControl(judged.description, condition->GetName().GetString())});
                    if (!rule->IsEventRule() && rule->stateWord.GetMeaning() != ClytState::DefButton)
                        JudgeReached(judged, *rule);
                }
            }};
}

} // namespace lytdlg
