#include "lytdlg/judge/Conditions.h"

#include "lytdlg/judge/Controls.h"
#include "lytdlg/judge/Lists.h"

#include <cctype>

namespace lytdlg
{

namespace
{

std::string Listed(const std::set<std::string>& values)
{
    std::string list;
    for (const std::string& value : values)
    {
        if (!value.empty())
            list += (list.empty() ? "" : ", ") + InQuotes(value);
    }
    return list.empty() ? "its only value is empty" : "its values are " + list;
}

std::string HintForValue(const std::string& value, const std::set<std::string>& possible)
{
    return MeantOr(value, {possible.begin(), possible.end()}, Listed(possible));
}

// NULL or NOTNULL, when a value is one of them in other letters or with blanks in it; empty otherwise.
std::string MeantValueWord(const std::string& value)
{
    std::string letters;
    for (const char ch : value)
    {
        if (ch != ' ')
            letters += static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    }
    const bool isWord = letters == lytTextOf(ClytValueWord::Null) || letters == lytTextOf(ClytValueWord::NotNull);
    return isWord && letters != value ? letters : "";
}

} // namespace

void JudgeValues(const Case& judged, const Rule& rule, const ClytCtrlValList& condition, NullMeans null)
{
    const Description& description = judged.description;
    const ClytControlStatement* control = description.FindControl(condition.GetName().GetString());
    if (control == nullptr)
        return;
    const auto possible = PossibleValues(description, *control);
    const ClytSpan& name = condition.GetSpan();
    for (const std::string& value : Strings(condition.GetValues()))
    {
        const bool isNull = lytMeans<ClytValueWord::Null>(value.c_str());
        const ClytSpan place = description.PlaceOf(name.line, value, name.column + name.length);
        if (lytMeans<ClytValueWord::NotNull>(value.c_str()) || (isNull && null == NullMeans::ItsLetters))
            judged.findings.Add(rule, place,
                                InQuotes(value) + " has no meaning here: the value would have to be this word",
                                isNull ? "write \"\" for an empty value"
                                       : "NOTNULL works in $DEPENDANCES only; name the values, or turn the rule round");
        else if (const std::string meant = MeantValueWord(value); !meant.empty())
            judged.findings.Add(rule, place, InQuotes(value) + " is taken for a value",
                                "did you mean " + InQuotes(meant) + "?");
        else if (possible && !value.empty() && !isNull && !possible->contains(value))
            judged.findings.Add(rule, place,
                                InQuotes(condition.GetName().GetString()) + " never has the value " + InQuotes(value),
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
