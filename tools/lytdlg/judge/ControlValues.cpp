#include "lytdlg/judge/ControlValues.h"

#include "lytdlg/judge/Controls.h"
#include "lytdlg/judge/Lists.h"
#include "model/ClytWords.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

bool Means(ClytKeyword meaning, const std::string& word)
{
    return word == lytTextOf(meaning);
}

} // namespace

Role RoleOf(Kind kind, const ValueStatement& statement)
{
    const bool isOption = IsOptionWord(statement.values.front());
    const bool isSource = Means(ClytKeyword::FilledBy, statement.keyword);
    switch (kind)
    {
    case Kind::Field: return isSource ? Role::Source : isOption ? Role::Option : Role::Default;
    case Kind::List:
    case Kind::CheckList:
        if (!isOption && Means(ClytKeyword::DoubleClick, statement.keyword))
            return Role::DoubleClick;
        [[fallthrough]];
    case Kind::DropList:
    case Kind::Combo: return isOption ? Role::Option : isSource ? Role::Source : Role::Item;
    case Kind::CheckBox:
        if (isOption)
            return Role::Option;
        return Means(ClytKeyword::On, statement.keyword)    ? Role::On
               : Means(ClytKeyword::Off, statement.keyword) ? Role::Off
                                                            : Role::Default;
    case Kind::OptionGroup: return isOption ? Role::Option : Role::Default;
    case Kind::Option: return isOption ? Role::Option : Role::OptionValue;
    case Kind::Button: return isOption ? Role::Option : Role::Action;
    case Kind::Text:
    case Kind::Frame: return isOption ? Role::Option : Role::Nothing;
    default: return Role::Nothing;
    }
}

Role RoleOf(const Description& description, const ValueStatement& statement)
{
    return RoleOf(KindOfControl(description, statement.name), statement);
}

const std::vector<std::string>& OptionWords()
{
    static const std::vector<std::string> words = []
    {
        std::vector<std::string> all;
        for (const auto& word : ClytWordTable<ClytOption>::words)
            all.emplace_back(word.text);
        return all;
    }();
    return words;
}

bool IsOptionWord(const std::string& word)
{
    return std::ranges::find(OptionWords(), word) != OptionWords().end();
}

bool HasOption(const Description& description, const std::string& name, const std::string& word)
{
    return std::ranges::any_of(description.values,
                               [&](const ValueStatement& statement)
                               {
                                   return statement.name == name && statement.values.front() == word &&
                                          RoleOf(description, statement) == Role::Option;
                               });
}

std::vector<const ValueStatement*> StatementsOf(const Description& description, const std::string& name, Role role)
{
    const Kind kind = KindOfControl(description, name);
    std::vector<const ValueStatement*> found;
    for (const ValueStatement& statement : description.values)
    {
        if (statement.name == name && RoleOf(kind, statement) == role)
            found.push_back(&statement);
    }
    return found;
}

std::vector<std::string> OptionsOf(const Description& description, const std::string& group)
{
    std::vector<std::string> options;
    for (const ClytControlStatement* option : OptionButtonsOf(description, group))
        options.emplace_back(option->name.GetString());
    return options;
}

std::vector<const ClytControlFill*> FillsOf(const Description& description, const std::string& name)
{
    std::vector<const ClytControlFill*> found;
    for (const InputPart& input : description.inputs)
    {
        for (const ClytDialogInput* statement : Records(input.part.GetStatements()))
        {
            for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            {
                for (const ClytControlFill* fill : Records(rule->fills))
                {
                    if (fill->controlName == name.c_str())
                        found.push_back(fill);
                }
            }
        }
    }
    return found;
}

bool TakesItems(const Description& description, const std::string& name)
{
    const bool fromButton = std::ranges::any_of(description.values,
                                                [&](const ValueStatement& statement)
                                                {
                                                    return statement.keyword == lytTextOf(ClytAction::Add) &&
                                                           statement.values.back() == name &&
                                                           RoleOf(description, statement) == Role::Action;
                                                });
    return fromButton || !StatementsOf(description, name, Role::Source).empty() ||
           std::ranges::any_of(FillsOf(description, name),
                               [](const ClytControlFill* fill) { return AddsItems(*fill); });
}

std::optional<std::vector<std::string>> PossibleValues(const Description& description, const std::string& name)
{
    const Kind kind = KindOfControl(description, name);
    std::vector<std::string> values;
    const auto add = [&](const std::string& control, Role role)
    {
        for (const ValueStatement* statement : StatementsOf(description, control, role))
            values.push_back(statement->values.front());
    };
    switch (kind)
    {
    case Kind::CheckBox:
        add(name, Role::On);
        add(name, Role::Off);
        return values;
    case Kind::OptionGroup:
        for (const std::string& option : OptionsOf(description, name))
            add(option, Role::OptionValue);
        return values;
    case Kind::List:
    case Kind::CheckList:
    case Kind::DropList:
        if (TakesItems(description, name))
            return std::nullopt;
        add(name, Role::Item);
        return values;
    default: return std::nullopt;
    }
}

} // namespace lytdlg
