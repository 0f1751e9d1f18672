#include "lytdlg/judge/Conditions.h"

#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace lytdlg
{

namespace
{

using Values = std::set<std::string>;

std::string Listed(const Values& values)
{
    constexpr size_t mostListed = 12;
    std::string list;
    size_t count = 0;
    for (const std::string& value : values)
    {
        if (value.empty())
            continue;
        if (count++ < mostListed)
            list += (list.empty() ? "" : ", ") + InQuotes(value);
    }
    if (count > mostListed)
        list += " and " + std::to_string(count - mostListed) + " more";
    return list.empty() ? "its only value is empty" : "its values are " + list;
}

// For a control with many values the list of them says enough.
std::string HintForValue(const std::string& value, const Values& possible)
{
    if (possible.size() > mostCandidates)
        return "use one of the values that $VALUES names";
    return MeantOr(value, {possible.begin(), possible.end()}, Listed(possible));
}

// NULL or NOTNULL, when a value is one of them, also in other letters, with blanks in it, or misspelt in capitals.
std::string MeantValueWord(const std::string& value)
{
    static const std::vector<std::string> words = {lytTextOf(ClytValueWord::Null), lytTextOf(ClytValueWord::NotNull)};
    std::string letters = value;
    std::erase(letters, ' ');
    const std::string meant = MeantWord(letters, words);
    const bool isInCapitals = std::ranges::none_of(letters, [](unsigned char ch) { return std::islower(ch) != 0; });
    // Words that begin otherwise are likely to be values.
    const bool isMisspelt = isInCapitals && letters.find_first_of("NE!") == 0;
    return isMisspelt || IsSameName(letters, meant) ? meant : "";
}

bool IsKnown(const std::string& word, ValueWords known)
{
    return known == ValueWords::NullAndNotNull ||
           (known == ValueWords::Null && lytMeans<ClytValueWord::Null>(word.c_str()));
}

void JudgeValueWord(const Case& judged, RuleName rule, const std::string& value, const std::string& meant,
                    const ClytSpan& place, ValueWords known)
{
    if (!IsKnown(meant, known))
        judged.findings.Add(rule, place, InQuotes(value) + " has no meaning here: the value would have to be this word",
                            lytMeans<ClytValueWord::Null>(meant.c_str())
                                ? "write \"\" for an empty value"
                                : "NOTNULL works in $DEPENDANCES only; name the values, or turn the rule round");
    else if (value != meant)
        judged.findings.Add(rule, place, InQuotes(value) + " is taken for a value",
                            "did you mean " + InQuotes(meant) + "?");
}

} // namespace

bool AsksForContent(const ClytCtrlValList& condition)
{
    return !condition.GetValues().IsEmpty() && lytMeans<ClytValueWord::NotNull>(condition.GetValues().GetTail());
}

std::vector<std::string> ValuesAskedBy(const ClytCtrlValList& condition)
{
    std::vector<std::string> values = Strings(condition.GetValues());
    std::ranges::replace(values, std::string(lytTextOf(ClytValueWord::Null)), std::string());
    if (AsksForContent(condition))
        values.pop_back();
    return values;
}

// What the conditions so far leave a control to hold.
class Choice
{
public:
    // False when the condition leaves nothing; then it counts alone.
    bool Narrow(const ClytCtrlValList& condition)
    {
        const std::vector<std::string> asked = ValuesAskedBy(condition);
        const Values values(asked.begin(), asked.end());
        const bool isOpen = AsksForContent(condition);
        Choice both = *this;
        both.m_isNotEmpty = m_isNotEmpty || isOpen;
        if (!isOpen && !m_values)
            both.m_values = values;
        else if (!isOpen)
            std::erase_if(*both.m_values, [&](const std::string& value) { return !values.contains(value); });
        if (both.m_isNotEmpty && both.m_values)
            both.m_values->erase("");
        const bool isPossible = !both.m_values || !both.m_values->empty();
        *this = isPossible ? both : Choice{};
        return isPossible;
    }

private:
    std::optional<Values> m_values; // any while no condition names some
    bool m_isNotEmpty = false;
};

std::vector<const ClytCtrlValList*> Contradictions(const ClytOwnedList<ClytCtrlValList>& conditions)
{
    std::map<std::string, Choice> choices;
    std::vector<const ClytCtrlValList*> found;
    for (const ClytCtrlValList* condition : Records(conditions))
    {
        if (!condition->GetValues().IsEmpty() && !choices[condition->GetName().GetString()].Narrow(*condition))
            found.push_back(condition);
    }
    return found;
}

bool AlwaysHolds(const Description& description, const ClytCtrlValList& condition)
{
    const std::string name = condition.GetName().GetString();
    const ClytControlStatement* control = description.FindControl(name);
    if (control == nullptr || AsksForContent(condition) || MayBeDisabled(description, name))
        return false;
    if (condition.GetValues().IsEmpty())
        return true;
    // A group without a default has no value until the user chooses one.
    const Kind kind = KindOf(*control);
    const bool isChosen = kind == Kind::CheckBox ||
                          (kind == Kind::OptionGroup && LastStatementOf(description, name, Role::Default) != nullptr);
    const std::vector<std::string> asked = ValuesAskedBy(condition);
    const auto isAsked = [&](const std::string& value) { return std::ranges::find(asked, value) != asked.end(); };
    return isChosen && std::ranges::all_of(*description.Index().PossibleValuesOf(*control), isAsked);
}

void JudgeValues(const Case& judged, RuleName rule, const ClytCtrlValList& condition, ValueWords known)
{
    const Description& description = judged.description;
    const std::string name = condition.GetName().GetString();
    const ClytControlStatement* control = description.FindControl(name);
    if (control == nullptr)
        return;
    const std::optional<Values>& possible = description.Index().PossibleValuesOf(*control);
    const ClytSpan& span = condition.GetSpan();
    for (const std::string& value : Strings(condition.GetValues()))
    {
        const ClytSpan place = description.PlaceOf(span.line, value, span.column + span.length);
        const std::string meant = MeantValueWord(value);
        const bool isValue = possible && possible->contains(value);
        if (!meant.empty() && (!isValue || meant == value))
            JudgeValueWord(judged, rule, value, meant, place, known);
        else if (possible && !isValue && !value.empty())
            judged.findings.Add(rule, place, InQuotes(name) + " never has the value " + InQuotes(value),
                                HintForValue(value, *possible));
    }
}

void JudgeReadControl(const Case& judged, RuleName rule, const std::string& name, const ClytSpan& place)
{
    const ClytControlStatement* control = judged.description.FindControl(name);
    if (control == nullptr)
        return;
    const Kind kind = KindOf(*control);
    const bool isBox = kind == Kind::Text || kind == Kind::Frame || kind == Kind::Button;
    if (isBox)
        judged.findings
            .Add(rule, place, "a " + std::string(control->type.GetString()) + " has no value",
                 "name a control that holds one")
            .number = lytError("ValueMissing");
    else if (kind == Kind::Option)
        judged.findings.Add(rule, place, "an option has its value whether it is chosen or not", "name its OptionGroup");
}

} // namespace lytdlg
