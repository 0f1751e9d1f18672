#include "lytdlg/judge/ControlValues.h"

#include "lytdlg/judge/DescriptionIndex.h"
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
    const bool takesNothing = kind == Kind::Unknown || lytTypeOf(kind).isDefault;
    if (!takesNothing && OptionOf(statement) != ClytOption::Other)
        return Role::Option;
    switch (kind)
    {
    case Kind::Field:
    case Kind::OptionGroup: return Role::Default;
    case Kind::List:
    case Kind::CheckList:
    case Kind::DropList:
    case Kind::Combo: return RoleOfList(keyword, lytTypeOf(kind).isOpenList);
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

// A word that an option begins with, as DISPLAY.
bool IsHalfAnOption(const std::string& word)
{
    constexpr size_t enough = 4;
    return word.size() >= enough &&
           std::ranges::any_of(WordsOf<ClytOption>(), [&](const std::string& option)
                               { return option.size() > word.size() && option.starts_with(word); });
}

bool IsMeantAsOption(const ValueStatement& statement)
{
    const std::string& word = statement.values.front();
    const std::string meant = statement.keyword.empty() ? MeantWord(word, WordsOf<ClytOption>()) : "";
    const bool isInCapitals = std::ranges::none_of(word, [](char ch) { return ch >= 'a' && ch <= 'z'; });
    return (!meant.empty() && meant != word && (IsSameName(meant, word) || isInCapitals)) || IsHalfAnOption(word);
}

bool HasOption(const Description& description, const std::string& name, ClytOption option)
{
    return description.Index().FactsOf(name).options.contains(option);
}

bool MayBeHidden(const Description& description, const ClytControlStatement& control)
{
    const ClytControlStatement* group = KindOf(control) == Kind::Option ? GroupOf(description, control) : nullptr;
    const std::string name = (group != nullptr ? group->name : control.name).GetString();
    return !name.empty() &&
           (HasOption(description, name, ClytOption::Invisible) || HasOption(description, name, ClytOption::Hidden) ||
            description.Index().FactsOf(name).isHidden);
}

bool MayBeDisabled(const Description& description, const std::string& name)
{
    return HasOption(description, name, ClytOption::Inactive) || description.Index().FactsOf(name).isDisabled;
}

const std::vector<const ValueStatement*>& StatementsOf(const Description& description, const std::string& name,
                                                       Role role)
{
    static const std::vector<const ValueStatement*> none;
    const auto& statements = description.Index().FactsOf(name).statements;
    const auto found = statements.find(role);
    return found != statements.end() ? found->second : none;
}

bool IsMeantElsewhere(const Description& description, const std::string& name)
{
    return description.Index().IsMeantElsewhere(name);
}

const ValueStatement* LastStatementOf(const Description& description, const std::string& name, Role role)
{
    const std::vector<const ValueStatement*>& statements = StatementsOf(description, name, role);
    return statements.empty() ? nullptr : statements.back();
}

bool GetsItemsOnOpening(const Description& description, const std::string& name)
{
    return LastStatementOf(description, name, Role::Source) != nullptr ||
           description.Index().FactsOf(name).getsItemsFromInput;
}

bool GetsItems(const Description& description, const std::string& name)
{
    return GetsItemsOnOpening(description, name) || description.Index().FactsOf(name).getsItemsFromButton;
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
