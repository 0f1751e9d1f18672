#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/PlacedValue.h"

#include <algorithm>
#include <map>
#include <set>

namespace lytdlg
{

namespace
{

void JudgeItems(const Case& judged)
{
    std::map<std::pair<std::string, std::string>, int> lines;
    for (const ValueStatement& value : judged.description.values)
    {
        const PlacedValue statement(judged, value);
        if (statement.role != Role::Item || value.keyword.empty())
            continue;
        const auto [first, isNew] = lines.emplace(std::pair(value.name, value.values.front()), value.span.line);
        if (!isNew)
            judged.findings.Add("item-twice", statement.PlaceOfValue(),
                                "the item of line " + std::to_string(first->second) + " has the same value",
                                "give each item a different value");
        const std::string section = judged.description.TextSection();
        const auto isKey = [&](const LanguageFile& file)
        { return file.Find(section, value.values.front()) != nullptr; };
        if (lytTypeOf(statement.kind).isOpenList && std::ranges::any_of(judged.surroundings.texts.Files(), isKey))
            judged.findings.Add("item-is-key", statement.PlaceOfValue(),
                                InQuotes(value.values.front()) + " is also a key of the section [" + section + "]",
                                "give the item a value that is no key");
    }
}

// An option of a group in which others have values.
void JudgeOptionValue(const Case& judged, const ClytControlStatement& option)
{
    const std::string name = option.name.GetString();
    judged.findings.Add("option-without-value", judged.description.PlaceOf(option.span.line),
                        (name.empty() ? "this option" : InQuotes(name)) + std::string(" has no value"),
                        "add " + InQuotes((name.empty() ? "NAME" : name) + " = VALUE") + " to $VALUES");
}

void JudgeOptions(const Case& judged, const std::string& group)
{
    std::map<std::string, int> lines;
    std::vector<const ClytControlStatement*> valueless;
    for (const ClytControlStatement* option : OptionButtonsOf(judged.description, group))
    {
        const ValueStatement* own = LastStatementOf(judged.description, option->name.GetString(), Role::OptionValue);
        if (own == nullptr)
        {
            valueless.push_back(option);
            continue;
        }
        const auto [first, isNew] = lines.emplace(own->values.front(), own->span.line);
        if (!isNew)
            judged.findings.Add("option-twice", PlacedValue(judged, *own).PlaceOfValue(),
                                "the option of line " + std::to_string(first->second) + " has the same value",
                                "give each option a different value");
    }
    for (const ClytControlStatement* option : valueless)
    {
        if (!lines.empty() && !IsMeantElsewhere(judged.description, option->name.GetString()))
            JudgeOptionValue(judged, *option);
    }
}

// The values of a group's options, each with the last statement that gives it.
std::map<std::string, const ValueStatement*> OwnersOfValues(const Description& description, const std::string& group)
{
    std::map<std::string, const ValueStatement*> owners;
    for (const ClytControlStatement* option : OptionButtonsOf(description, group))
    {
        for (const ValueStatement* value : StatementsOf(description, option->name.GetString(), Role::OptionValue))
            owners[value->values.front()] = value;
    }
    return owners;
}

void JudgeGroupDefaults(const Case& judged, const std::string& group)
{
    const std::map<std::string, const ValueStatement*> owners = OwnersOfValues(judged.description, group);
    std::vector<std::string> values;
    for (const auto& [value, owner] : owners)
        values.push_back(value);
    for (const ValueStatement* value : StatementsOf(judged.description, group, Role::Default))
    {
        const PlacedValue statement(judged, *value);
        const std::string& begin = value->values.front();
        const auto own = owners.find(begin);
        if (own == owners.end())
            AddUnknown(judged, "default-unknown", statement.PlaceOfValue(),
                       "no option of " + statement.Name() + " has the value " + InQuotes(begin),
                       {begin, values, "use the value of one of its options"});
        else if (own->second->span.line > value->span.line)
            judged.findings.Add("default-early", statement.PlaceOfValue(),
                                "the option gets this value in line " + std::to_string(own->second->span.line) +
                                    ", too late",
                                "write the statement after the values of the options");
    }
}

void JudgeCheckBox(const Case& judged, const std::string& name)
{
    const Description& description = judged.description;
    const auto textOf = [](const ValueStatement* value)
    { return value != nullptr ? value->values.front() : std::string(); };
    const ValueStatement* begin = LastStatementOf(description, name, Role::Default);
    const ValueStatement* on = LastStatementOf(description, name, Role::On);
    const ValueStatement* off = LastStatementOf(description, name, Role::Off);
    const std::string text = textOf(begin);
    if (begin != nullptr && !text.empty() && text != textOf(on) && text != textOf(off))
    {
        const PlacedValue statement(judged, *begin);
        AddUnknown(judged, "check-default", statement.PlaceOfValue(),
                   InQuotes(text) + " is neither the ON nor the OFF text of " + InQuotes(name),
                   {text, {textOf(on), textOf(off)}, "use one of the two texts"})
            .number = lytError("BoxText");
    }
    const ClytControlStatement& control = *description.FindControl(name);
    const ClytSpan place = description.PlaceOf(control.span.line, "." + name, control.span.column);
    // A box without any statement begins checked, and has no value that anybody could ask for.
    if (begin == nullptr && on == nullptr && off == nullptr)
        return;
    if (on == nullptr || off == nullptr)
        judged.findings.Add("check-texts", place,
                            InQuotes(name) + " has no " +
                                (on != nullptr    ? "OFF text"
                                 : off != nullptr ? "ON text"
                                                  : "ON and no OFF text"),
                            "add " + InQuotes(name + (on != nullptr ? ": OFF = TEXT" : ": ON = TEXT")) + " to $VALUES");
    else if (textOf(on) == textOf(off))
        judged.findings.Add("check-texts",
                            PlacedValue(judged, *(on->span.line > off->span.line ? on : off)).PlaceOfValue(),
                            "ON and OFF text of " + InQuotes(name) + " are the same", "make them differ");
}

void JudgeCheckBoxes(const Case& judged)
{
    const Description& description = judged.description;
    std::set<std::string> boxes;
    for (const ClytControlStatement& control : description.controls)
    {
        const std::string name = control.name.GetString();
        const bool isBox = !name.empty() && KindOfControl(description, name) == Kind::CheckBox;
        if (isBox && boxes.insert(name).second)
            JudgeCheckBox(judged, name);
    }
}

} // namespace

void ApplyContentRules(const Case& judged)
{
    JudgeItems(judged);
    JudgeCheckBoxes(judged);
    std::set<std::string> groups;
    for (const ClytControlStatement& control : judged.description.controls)
    {
        const std::string name = control.name.GetString();
        if (KindOf(control) != Kind::OptionGroup || !groups.insert(name).second)
            continue;
        JudgeOptions(judged, name);
        if (KindOfControl(judged.description, name) == Kind::OptionGroup)
            JudgeGroupDefaults(judged, name);
    }
}

} // namespace lytdlg
