#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

bool IsStateRule(const ClytControlDep& rule)
{
    return !rule.IsEventRule() && rule.stateWord.GetMeaning() != ClytState::DefButton;
}

// A rule with what the description says of its control.
struct Judged
{
    const Case& judged;
    const ClytControlDep& rule;
    const ClytControlDep* next; // that is kept, or null
    const Kind kind;

    std::string Name() const { return rule.controlName.GetString(); }
    const Description& Of() const { return judged.description; }
    ClytSpan PlaceOfName() const
    {
        return {rule.span.line, rule.span.column, std::max(1, rule.controlName.GetLength())};
    }
    ClytSpan PlaceOfWord() const
    {
        return Of().PlaceOf(rule.span.line, rule.stateWord.GetText().GetString(),
                            rule.span.column + rule.controlName.GetLength());
    }
    Finding& Add(RuleName found, const ClytSpan& place, std::string message, std::string hint) const
    {
        return judged.findings.Add(found, place, std::move(message), std::move(hint));
    }
};

void JudgeControl(const Judged& each)
{
    const std::string carried =
        each.next != nullptr ? ", and its conditions go to the rule of line " + std::to_string(each.next->span.line)
                             : ", and does nothing";
    AddUnknown(each.judged, "rule-control-unknown", each.PlaceOfName(),
               "no control is called " + InQuotes(each.Name()) + "; the rule is dropped" + carried,
               {each.Name(), ControlNames(each.Of()), "use the name of a control"});
}

void JudgeWord(const Judged& each)
{
    const std::string word = each.rule.stateWord.GetText().GetString();
    if (each.rule.stateWord.GetMeaning() == ClytState::Other)
    {
        Finding& finding = AddUnknown(each.judged, "state-unknown", each.PlaceOfWord(),
                                      InQuotes(word) + " is no state; the rule shows and hides the control",
                                      {word, WordsOf<ClytState>(), "use VISIBLE, ACTIVE, CLEAR, FILL or DEFBUTTON"});
        // Until then the rule does what VISIBLE does.
        if (finding.fix)
            finding.fix->isSafe = finding.fix->isSafe && lytMeans<ClytState::Visible>(finding.fix->text.c_str());
    }
    if (lytTypeOf(each.kind).isDefault && IsStateRule(each.rule))
        each.Add("state-on-ok", each.PlaceOfName(),
                 std::string(lytTypeOf(each.kind).name) + " has no states; the rule does nothing",
                 "delete it, and refuse what must not be confirmed in $EVALUATION");
    if (each.rule.stateWord.GetMeaning() == ClytState::DefButton && each.kind != Kind::Button)
        each.Add("default-button", each.PlaceOfName(),
                 InQuotes(each.Name()) + " is " + lytTypeOf(each.kind).name + " and cannot be pressed",
                 "name a push button");
    if (each.rule.stateWord.GetMeaning() == ClytState::Visible && HasOption(each.Of(), each.Name(), ClytOption::Hidden))
        each.Add("hidden-shown", each.PlaceOfName(), InQuotes(each.Name()) + " is HIDDEN, and this rule shows it",
                 "make it INVISIBLE in $VALUES, or delete the rule");
}

void JudgeEvent(const Judged& each)
{
    if (!each.rule.IsEventRule())
        return;
    const std::string word = each.rule.stateWord.GetText().GetString();
    if (!lytTypeOf(each.kind).isFilled)
        each.Add("event-kind", each.PlaceOfName(),
                 InQuotes(each.Name()) + " is " + lytTypeOf(each.kind).name + " and does not know " + word,
                 "use it for fields and lists");
    else if (each.rule.stateWord.GetMeaning() == ClytState::Fill &&
             LastStatementOf(each.Of(), each.Name(), Role::Source) == nullptr)
        each.Add("fill-without-source", each.PlaceOfWord(),
                 "no statement FILLEDBY says what fills " + InQuotes(each.Name()),
                 "add " + InQuotes(each.Name() + " = FILLEDBY, LIBRARY, FUNCTION, NEXT") + " to $VALUES");
    for (const ClytCtrlValList* condition : Records(each.rule.conditions))
    {
        if (condition->GetValues().IsEmpty())
            continue;
        Finding& finding = each.Add("event-values", condition->GetSpan(),
                                    word + " does not look at the values in brackets", "name the control alone");
        const std::string& line = each.Of().text.Line(finding.place.line).text;
        const size_t open = line.find('(', static_cast<size_t>(finding.place.column));
        const size_t close = line.find(')', open);
        if (close != std::string::npos && line.substr(open, close - open).find('"') == std::string::npos)
            finding.FixSafely({finding.place.line, static_cast<int>(open), static_cast<int>(close + 1 - open)}, "");
    }
}

void JudgeNever(const Judged& each)
{
    const bool isAlone = each.rule.conditions.IsEmpty();
    if (isAlone && !IsStateRule(each.rule))
    {
        each.Add("rule-never", each.PlaceOfWord(), "no control is named; the rule never acts",
                 "name the controls after the equals sign");
        return;
    }
    if (!IsStateRule(each.rule))
        return;
    if (isAlone)
        each.Add("rule-always", each.PlaceOfWord(), "no condition is named; the rule always holds",
                 "name the conditions after the equals sign");
    for (const ClytCtrlValList* condition : Contradictions(each.rule.conditions))
        each.Add("rule-never", condition->GetSpan(),
                 InQuotes(condition->GetName().GetString()) + " cannot hold both at once; the rule never holds",
                 "of the values in one pair of brackets one is enough");
}

void JudgeSelf(const Judged& each)
{
    for (const ClytCtrlValList* condition : Records(each.rule.conditions))
    {
        const ClytState meaning = each.rule.stateWord.GetMeaning();
        const bool isHarmful = meaning == ClytState::Active || each.rule.IsEventRule();
        if (isHarmful && condition->GetName() == each.rule.controlName)
            each.Add("rule-on-itself", condition->GetSpan(), "the rule depends on the control that it acts on",
                     each.rule.conditions.GetCount() == 1 ? "delete the rule, or name another control"
                                                          : "delete the condition, or name another control");
    }
}

void JudgeTwice(const Case& judged)
{
    std::map<std::pair<std::string, ClytState>, const ClytControlDep*> last;
    for (const ClytControlDep* rule : Records(judged.description.rules))
    {
        const ClytState meaning = rule->stateWord.GetMeaning();
        if (meaning != ClytState::Visible && meaning != ClytState::Active)
            continue;
        const ClytControlDep*& before = last[{rule->controlName.GetString(), meaning}];
        if (before != nullptr)
            judged.findings.Add("rule-twice", judged.description.PlaceOf(before->span.line),
                                "the rule of line " + std::to_string(rule->span.line) +
                                    " sets the same state and decides",
                                "write one rule with the conditions of both, one with NOTNULL last");
        before = rule;
    }
}

} // namespace

void ApplyDependencyRules(const Case& judged)
{
    std::vector<const ClytControlDep*> rules = Records(judged.description.rules);
    std::ranges::reverse(rules);
    const ClytControlDep* next = nullptr;
    for (const ClytControlDep* rule : rules)
    {
        const std::string name = rule->controlName.GetString();
        const Judged each = {judged, *rule, next, KindOfControl(judged.description, name)};
        if (judged.description.FindControl(name) != nullptr)
            next = rule;
        else
            JudgeControl(each);
        if (each.kind == Kind::Unknown)
            continue;
        JudgeWord(each);
        JudgeEvent(each);
        JudgeNever(each);
        JudgeSelf(each);
    }
    JudgeTwice(judged);
}

} // namespace lytdlg
