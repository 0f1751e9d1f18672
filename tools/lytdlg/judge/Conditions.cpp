#include "lytdlg/judge/Conditions.h"

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>
#include <cctype>

namespace lytdlg
{

namespace
{

using Values = std::set<std::string>;

std::string Listed(const Values& values)
{
    std::string list;
    for (const std::string& value : values)
    {
        if (!value.empty())
            list += (list.empty() ? "" : ", ") + InQuotes(value);
    }
    return list.empty() ? "its only value is empty" : "its values are " + list;
}

std::string HintForValue(const std::string& value, const Values& possible)
{
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

void JudgeValueWord(const Case& judged, const Rule& rule, const std::string& value, const std::string& meant,
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

bool ExcludeEachOther(const ClytCtrlValList& left, const ClytCtrlValList& right)
{
    if (left.GetName() != right.GetName() || left.GetValues().IsEmpty() || right.GetValues().IsEmpty())
        return false;
    const std::vector<std::string> leftValues = ValuesAskedBy(left);
    const std::vector<std::string> rightValues = ValuesAskedBy(right);
    const bool isLeftOpen = AsksForContent(left);
    const bool isRightOpen = AsksForContent(right);
    if (isLeftOpen || isRightOpen)
    {
        const std::vector<std::string>& closed = isLeftOpen ? rightValues : leftValues;
        return isLeftOpen != isRightOpen && std::ranges::all_of(closed, &std::string::empty);
    }
    return std::ranges::none_of(leftValues, [&](const std::string& value)
                                { return std::ranges::find(rightValues, value) != rightValues.end(); });
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
    return isChosen && std::ranges::all_of(*PossibleValues(description, *control), isAsked);
}

void JudgeValues(const Case& judged, const Rule& rule, const ClytCtrlValList& condition, ValueWords known)
{
    const Description& description = judged.description;
    const std::string name = condition.GetName().GetString();
    const ClytControlStatement* control = description.FindControl(name);
    if (control == nullptr)
        return;
    const std::optional<Values> possible = PossibleValues(description, *control);
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

void JudgeReadControl(const Case& judged, const Rule& rule, const std::string& name, const ClytSpan& place)
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
            .number = "201";
    else if (kind == Kind::Option)
        judged.findings.Add(rule, place, "an option has its value whether it is chosen or not", "name its OptionGroup");
}

} // namespace lytdlg
