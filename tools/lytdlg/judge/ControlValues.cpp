#include "lytdlg/judge/ControlValues.h"

#include "lytdlg/judge/Fills.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

ClytOption OptionOf(const ValueStatement& statement)
{
    return lytMeaningOf<ClytOption>(statement.values.front().c_str());
}

ClytAction ActionOf(const ValueStatement& statement)
{
    return lytMeaningOf<ClytAction>(statement.keyword.c_str());
}

Role RoleOfCheckBox(ClytKeyword keyword)
{
    return keyword == ClytKeyword::On ? Role::On : keyword == ClytKeyword::Off ? Role::Off : Role::Default;
}

Role RoleOfList(ClytKeyword keyword, bool isOpen)
{
    if (keyword == ClytKeyword::FilledBy)
        return Role::Source;
    return keyword == ClytKeyword::DoubleClick && isOpen ? Role::DoubleClick : Role::Item;
}

// The first value of the last statement of a role.
std::string LastText(const Description& description, const std::string& name, Role role)
{
    const ValueStatement* statement = LastStatementOf(description, name, role);
    return statement != nullptr ? statement->values.front() : "";
}

std::set<std::string> OptionValues(const Description& description, const std::string& group)
{
    std::set<std::string> values;
    for (const ClytControlStatement* option : OptionButtonsOf(description, group))
        values.insert(LastText(description, option->name.GetString(), Role::OptionValue));
    return values;
}

std::optional<std::set<std::string>> ItemValues(const Description& description, const std::string& name)
{
    if (GetsItems(description, name))
        return {};
    std::set<std::string> values;
    for (const ValueStatement* item : StatementsOf(description, name, Role::Item))
        values.insert(item->values.front());
    return values;
}

} // namespace

Role RoleOf(Kind kind, const ValueStatement& statement)
{
    const auto keyword = lytMeaningOf<ClytKeyword>(statement.keyword.c_str());
    // A field asks for FILLEDBY first, any other control for the option words.
    if (kind == Kind::Field && keyword == ClytKeyword::FilledBy)
        return Role::Source;
    const bool takesNothing = kind == Kind::Unknown || IsDefault(kind);
    if (!takesNothing && OptionOf(statement) != ClytOption::Other)
        return Role::Option;
    switch (kind)
    {
    case Kind::Field:
    case Kind::OptionGroup: return Role::Default;
    case Kind::List:
    case Kind::CheckList:
    case Kind::DropList:
    case Kind::Combo: return RoleOfList(keyword, IsOpenList(kind));
    case Kind::CheckBox: return RoleOfCheckBox(keyword);
    case Kind::Option: return Role::OptionValue;
    case Kind::Button: return Role::Action;
    default: return Role::Nothing;
    }
}

Role RoleOf(const Description& description, const ValueStatement& statement)
{
    return RoleOf(KindOfControl(description, statement.name), statement);
}

bool IsMeantAsOption(const ValueStatement& statement)
{
    const std::string& word = statement.values.front();
    const std::string meant = statement.keyword.empty() ? MeantWord(word, WordsOf<ClytOption>()) : "";
    const bool isInCapitals = std::ranges::none_of(word, [](char ch) { return ch >= 'a' && ch <= 'z'; });
    return !meant.empty() && meant != word && (IsSameName(meant, word) || isInCapitals);
}

bool HasOption(const Description& description, const std::string& name, ClytOption option)
{
    return std::ranges::any_of(StatementsOf(description, name, Role::Option),
                               [&](const ValueStatement* statement) { return OptionOf(*statement) == option; });
}

bool MayBeHidden(const Description& description, const ClytControlStatement& control)
{
    const ClytControlStatement* group = KindOf(control) == Kind::Option ? GroupOf(description, control) : nullptr;
    const CString& name = group != nullptr ? group->name : control.name;
    if (name.IsEmpty())
        return false;
    const auto hides = [&](const ClytControlDep* rule)
    {
        const ClytState meaning = rule->stateWord.GetMeaning();
        return rule->controlName == name && (meaning == ClytState::Visible || meaning == ClytState::Other);
    };
    const auto toggles = [&](const ValueStatement& statement)
    {
        return ActionOf(statement) == ClytAction::Visible && statement.values.front() == name.GetString() &&
               RoleOf(description, statement) == Role::Action;
    };
    return HasOption(description, name.GetString(), ClytOption::Invisible) ||
           HasOption(description, name.GetString(), ClytOption::Hidden) ||
           std::ranges::any_of(Records(description.rules), hides) || std::ranges::any_of(description.values, toggles);
}

bool MayBeDisabled(const Description& description, const std::string& name)
{
    const auto disables = [&](const ClytControlDep* rule)
    { return rule->controlName == name.c_str() && rule->stateWord.GetMeaning() == ClytState::Active; };
    const auto toggles = [&](const ValueStatement& statement)
    {
        return ActionOf(statement) == ClytAction::Active && statement.values.front() == name &&
               RoleOf(description, statement) == Role::Action;
    };
    return HasOption(description, name, ClytOption::Inactive) ||
           std::ranges::any_of(Records(description.rules), disables) ||
           std::ranges::any_of(description.values, toggles);
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

bool IsMeantElsewhere(const Description& description, const std::string& name)
{
    const std::vector<std::string> names = ControlNames(description);
    const auto isMisspelt = [&](const ValueStatement& value)
    { return description.FindControl(value.name) == nullptr && MeantWord(value.name, names) == name; };
    const auto isRefused = [&](const SourceLine* line)
    { return description.IsRefused(line->number) && line->text.find(name) != std::string::npos; };
    return std::ranges::any_of(description.values, isMisspelt) ||
           std::ranges::any_of(description.text.LinesOf(Section::Values), isRefused);
}

const ValueStatement* LastStatementOf(const Description& description, const std::string& name, Role role)
{
    const std::vector<const ValueStatement*> statements = StatementsOf(description, name, role);
    return statements.empty() ? nullptr : statements.back();
}

bool GetsItemsOnOpening(const Description& description, const std::string& name)
{
    return LastStatementOf(description, name, Role::Source) != nullptr ||
           std::ranges::any_of(FillsOf(description, name),
                               [](const ClytControlFill* fill) { return AddsItems(*fill); });
}

bool GetsItems(const Description& description, const std::string& name)
{
    const auto isAdded = [&](const ValueStatement& statement)
    {
        return ActionOf(statement) == ClytAction::Add && statement.values.back() == name &&
               RoleOf(description, statement) == Role::Action;
    };
    return GetsItemsOnOpening(description, name) || std::ranges::any_of(description.values, isAdded);
}

std::optional<std::set<std::string>> PossibleValues(const Description& description, const ClytControlStatement& control)
{
    const std::string name = control.name.GetString();
    switch (KindOf(control))
    {
    case Kind::CheckBox: return std::set{LastText(description, name, Role::On), LastText(description, name, Role::Off)};
    case Kind::OptionGroup: return OptionValues(description, name);
    case Kind::Option: return std::set{LastText(description, name, Role::OptionValue)};
    case Kind::DropList:
    case Kind::List:
    case Kind::CheckList: return ItemValues(description, name);
    default: return {};
    }
}

} // namespace lytdlg
