#include "lytdlg/judge/Families.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace lytdlg
{

namespace
{

// Whether a condition holds whenever the other one does.
bool FollowsFrom(const ClytCtrlValList& asked, const ClytCtrlValList& other)
{
    if (asked.GetName() != other.GetName())
        return false;
    const std::vector<std::string> values = ValuesAskedBy(asked);
    const auto isAmongThem = [&](const std::string& value) { return std::ranges::find(values, value) != values.end(); };
    return asked.GetValues().IsEmpty() ||
           (!other.GetValues().IsEmpty() && std::ranges::all_of(ValuesAskedBy(other), isAmongThem));
}

bool HoldsWhenever(const ClytDialogOutput& rule, const ClytDialogOutput& other)
{
    const std::vector<const ClytCtrlValList*> given = Records(other.conditions);
    const auto isGiven = [&](const ClytCtrlValList* asked)
    { return std::ranges::any_of(given, [&](const ClytCtrlValList* each) { return FollowsFrom(*asked, *each); }); };
    return !rule.conditions.IsEmpty() && std::ranges::all_of(Records(rule.conditions), isGiven);
}

void JudgeNever(const Case& judged, const ClytDialogOutput& rule)
{
    for (const ClytCtrlValList* asked : Contradictions(rule.conditions))
        judged.findings.Add("output-never", asked->GetSpan(),
                            InQuotes(asked->GetName().GetString()) + " cannot hold both at once; the rule never holds",
                            "of the values in one pair of brackets one is enough");
}

// The rules of a group that were met, by the values that their first condition takes: those that hold whenever another
// one does are among the few that share a value with it.
class MetRules
{
public:
    // The first rule that holds whenever the given one does; null when none does.
    const ClytDialogOutput* ThatHoldsWhenever(const ClytDialogOutput& rule) const
    {
        const ClytDialogOutput* first = nullptr;
        for (const ClytCtrlValList* given : Records(rule.conditions))
        {
            for (const Key& key : KeysToAsk(*given))
                first = Earlier(first, FirstAt(key, rule));
        }
        return first;
    }

    void Add(const ClytDialogOutput& rule)
    {
        if (rule.conditions.IsEmpty())
            return;
        const ClytCtrlValList& first = *rule.conditions.GetHead();
        const std::string name = first.GetName().GetString();
        m_rules[{name, Asks::Anything, ""}].push_back(&rule);
        if (first.GetValues().IsEmpty())
            m_rules[{name, Asks::NoValue, ""}].push_back(&rule);
        for (const std::string& value : ValuesAskedBy(first))
            m_rules[{name, Asks::Value, value}].push_back(&rule);
    }

private:
    enum class Asks
    {
        Anything,
        NoValue,
        Value
    };
    using Key = std::tuple<std::string, Asks, std::string>;

    static std::vector<Key> KeysToAsk(const ClytCtrlValList& given)
    {
        const std::string name = given.GetName().GetString();
        const std::vector<std::string> values = ValuesAskedBy(given);
        const Key withoutValue = {name, Asks::NoValue, ""};
        if (given.GetValues().IsEmpty())
            return {withoutValue};
        return {withoutValue, values.empty() ? Key{name, Asks::Anything, ""} : Key{name, Asks::Value, values.front()}};
    }

    // Where more rules than these ask for one value, the others are ignored.
    const ClytDialogOutput* FirstAt(const Key& key, const ClytDialogOutput& rule) const
    {
        constexpr size_t mostAsked = 100;
        const auto found = m_rules.find(key);
        if (found == m_rules.end())
            return nullptr;
        const auto end = found->second.begin() + static_cast<std::ptrdiff_t>(std::min(mostAsked, found->second.size()));
        const auto holds = std::find_if(found->second.begin(), end,
                                        [&](const ClytDialogOutput* other) { return HoldsWhenever(*other, rule); });
        return holds != end ? *holds : nullptr;
    }

    static const ClytDialogOutput* Earlier(const ClytDialogOutput* left, const ClytDialogOutput* right)
    {
        return left == nullptr || (right != nullptr && right->span.line < left->span.line) ? right : left;
    }

    std::map<Key, std::vector<const ClytDialogOutput*>> m_rules;
};

void JudgeShadowed(const Case& judged, const OutputGroup& group)
{
    MetRules met;
    for (const ClytDialogOutput* rule : Records(group.rules))
    {
        if (const ClytDialogOutput* earlier = met.ThatHoldsWhenever(*rule))
            judged.findings.Add("output-shadowed", judged.description.PlaceOf(rule->span.line),
                                "the rule in line " + std::to_string(earlier->span.line) +
                                    " holds whenever this one does, so this one is never used",
                                "put it before that rule");
        met.Add(*rule);
    }
}

void JudgeOrder(const Case& judged, const OutputGroup& group)
{
    const ClytDialogOutput* always = nullptr;
    for (const ClytDialogOutput* rule : Records(group.rules))
    {
        if (always != nullptr)
            judged.findings.Add("output-unreached", judged.description.PlaceOf(rule->span.line),
                                "the rule in line " + std::to_string(always->span.line) +
                                    " always holds, so this one is never used",
                                rule->conditions.IsEmpty() ? "delete one of the two, or give that rule conditions"
                                                           : "put it before that rule");
        else if (std::ranges::all_of(
                     Records(rule->conditions), [&](const ClytCtrlValList* asked)
                     { return !asked->GetValues().IsEmpty() && AlwaysHolds(judged.description, *asked); }))
            always = rule;
    }
    if (always == nullptr && !group.rules.IsEmpty() && group.name == lytParentName)
        judged.findings.Add("output-last", judged.description.PlaceOf(group.rules.GetTail()->span.line),
                            "OK does nothing when this rule does not hold either",
                            "add a last rule without conditions");
}

// Rules.

void JudgeConditions(const Case& judged, const ClytDialogOutput& rule)
{
    for (const ClytCtrlValList* asked : Records(rule.conditions))
    {
        const std::string name = asked->GetName().GetString();
        if (judged.description.FindControl(name) == nullptr)
            AddUnknown(judged, "output-condition", asked->GetSpan(), "there is no control " + InQuotes(name),
                       {name, ControlNames(judged.description), "name a control of $LAYOUT"})
                .number = lytError("OutputControl");
        JudgeValues(judged, "output-condition-value", *asked, ValueWords::Null);
        if (!asked->GetValues().IsEmpty())
            JudgeReadControl(judged, "output-valueless", name, asked->GetSpan());
    }
}

void JudgeUnknownItem(const Case& judged, const ClytOutputItem& given)
{
    const std::string name = given.text.GetString();
    const std::vector<std::string>& known = ControlNames(judged.description);
    const std::string hint = MeantOr(name, known, "");
    const bool isList = !given.action.IsEmpty();
    if (!isList && (hint.empty() || judged.description.IsQuoted(given.span)))
        return;
    Finding& finding =
        judged.findings.Add("output-item", given.span,
                            "there is no " + std::string(isList ? "list " : "control ") + InQuotes(name) +
                                ": the word itself goes into the text",
                            hint.empty() ? "name a list of $LAYOUT" : hint + (isList ? "" : " Put a text in quotes"));
    FixWord(judged, finding, {name, known, ""});
    // The word may be meant as the text that it is.
    if (finding.fix)
        finding.fix->isSafe = false;
}

void JudgeAllItems(const Case& judged, const ClytOutputItem& given, const ClytControlStatement& control)
{
    const Kind kind = KindOf(control);
    const std::string name = given.text.GetString();
    const bool isCombo = kind == Kind::Combo || kind == Kind::DropList;
    if (!lytTypeOf(kind).hasItems)
    {
        judged.findings.Add("output-list", given.span,
                            "a " + std::string(control.type.GetString()) + " has no items: this is empty",
                            "leave the brackets out, or name a list");
        return;
    }
    if (isCombo && GetsItems(judged.description, name))
        judged.findings.Add("output-combo", given.span,
                            "items of " + InQuotes(name) + " that are no text keys go out as \"no value present\"",
                            "take a ListBox or CheckListBox");
    if (lytMeans<ClytFillAction::Concat>(given.action))
        judged.findings.Add("output-blanks", given.span, "a blank comes before, between and after the items",
                            "name a separator, as " + name + "(\"|\")");
    else if (given.action.GetLength() > 3)
        judged.findings.Add("output-separator", given.span, "only the first three characters in the brackets count",
                            "one between the items, one before them and one after them");
}

void JudgeItems(const Case& judged, const ClytDialogOutput& rule)
{
    for (const ClytOutputItem& given : rule.items)
    {
        const ClytControlStatement* control = judged.description.FindControl(given.text.GetString());
        if (control == nullptr)
            JudgeUnknownItem(judged, given);
        else if (given.text.IsEmpty() || KindOf(*control) == Kind::Unknown)
            continue;
        else if (!given.action.IsEmpty())
            JudgeAllItems(judged, given, *control);
        else
            JudgeReadControl(judged, "output-valueless", given.text.GetString(), given.span);
    }
}

} // namespace

void ApplyOutputRules(const Case& judged)
{
    for (const OutputGroup& group : judged.description.outputs)
    {
        JudgeOrder(judged, group);
        JudgeShadowed(judged, group);
        for (const ClytDialogOutput* rule : Records(group.rules))
        {
            if (judged.description.IsRefused(rule->span.line))
                continue;
            JudgeConditions(judged, *rule);
            JudgeNever(judged, *rule);
            JudgeItems(judged, *rule);
        }
    }
}

} // namespace lytdlg
