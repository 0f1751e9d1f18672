#include "lytdlg/judge/Controls.h"

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

ClytOption OptionOf(const ValueStatement& statement)
{
    return lytMeaningOf<ClytOption>(statement.values.front().c_str());
}

ClytKeyword KeywordOf(const ValueStatement& statement)
{
    return lytMeaningOf<ClytKeyword>(statement.keyword.c_str());
}

// The last value that is no option word.
std::string OwnValue(const Description& description, const std::string& name)
{
    std::string value;
    for (const ValueStatement* statement : StatementsOf(description, name))
    {
        if (OptionOf(*statement) == ClytOption::Other)
            value = statement->values.front();
    }
    return value;
}

std::set<std::string> CheckBoxValues(const Description& description, const std::string& name)
{
    std::string on;
    std::string off;
    for (const ValueStatement* statement : StatementsOf(description, name))
    {
        if (OptionOf(*statement) != ClytOption::Other)
            continue;
        if (KeywordOf(*statement) == ClytKeyword::On)
            on = statement->values.front();
        else if (KeywordOf(*statement) == ClytKeyword::Off)
            off = statement->values.front();
    }
    return {on, off};
}

std::set<std::string> OptionValues(const Description& description, const std::string& group)
{
    std::set<std::string> values;
    for (const ClytControlStatement* option : OptionButtonsOf(description, group))
        values.insert(OwnValue(description, option->name.GetString()));
    return values;
}

std::optional<std::set<std::string>> ItemValues(const Description& description, const std::string& name)
{
    if (GetsItems(description, name))
        return {};
    std::set<std::string> values;
    for (const ValueStatement* item : ItemsOf(description, name))
        values.insert(item->values.front());
    return values;
}

// The group that an option stands in; empty without one.
CString GroupOf(const Description& description, const ClytControlStatement& option)
{
    CString group;
    for (const ClytControlStatement& control : description.controls)
    {
        if (&control == &option)
            break;
        if (KindOf(control) == Kind::OptionGroup)
            group = control.name;
    }
    return group;
}

} // namespace

Kind KindOf(const ClytControlStatement& control)
{
    return KindOf(std::string(control.type.GetString()));
}

bool IsOpenList(Kind kind)
{
    return kind == Kind::List || kind == Kind::CheckList;
}

bool AddsItems(const ClytControlFill& fill)
{
    const ClytFillAction action = fill.action.GetMeaning();
    return action == ClytFillAction::Add || action == ClytFillAction::Modify || action == ClytFillAction::Concat;
}

bool TakesPiece(const ClytControlFill& fill)
{
    return AddsItems(fill) || (fill.action.GetMeaning() == ClytFillAction::Other && fill.value.IsEmpty());
}

std::vector<const ValueStatement*> StatementsOf(const Description& description, const std::string& name)
{
    std::vector<const ValueStatement*> statements;
    for (const ValueStatement& statement : description.values)
    {
        if (statement.name == name)
            statements.push_back(&statement);
    }
    return statements;
}

bool HasOption(const Description& description, const std::string& name, ClytOption option)
{
    return std::ranges::any_of(StatementsOf(description, name),
                               [&](const ValueStatement* statement) { return OptionOf(*statement) == option; });
}

bool MayBeHidden(const Description& description, const ClytControlStatement& control)
{
    const CString name = KindOf(control) == Kind::Option ? GroupOf(description, control) : control.name;
    if (name.IsEmpty())
        return false;
    const auto hides = [&](const ClytControlDep* rule)
    {
        const ClytState meaning = rule->stateWord.GetMeaning();
        return rule->controlName == name && (meaning == ClytState::Visible || meaning == ClytState::Other);
    };
    const auto toggles = [&](const ValueStatement& statement)
    {
        return lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Visible &&
               statement.values.front() == name.GetString();
    };
    return HasOption(description, name.GetString(), ClytOption::Invisible) ||
           HasOption(description, name.GetString(), ClytOption::Hidden) ||
           std::ranges::any_of(Records(description.rules), hides) || std::ranges::any_of(description.values, toggles);
}

const ValueStatement* SourceOf(const Description& description, const std::string& name)
{
    const ValueStatement* source = nullptr;
    for (const ValueStatement* statement : StatementsOf(description, name))
    {
        if (KeywordOf(*statement) == ClytKeyword::FilledBy && OptionOf(*statement) == ClytOption::Other)
            source = statement;
    }
    return source;
}

std::vector<const ValueStatement*> ItemsOf(const Description& description, const std::string& name)
{
    std::vector<const ValueStatement*> items = StatementsOf(description, name);
    const ClytControlStatement* control = description.FindControl(name);
    const bool hasDoubleClick = control != nullptr && IsOpenList(KindOf(*control));
    std::erase_if(items,
                  [&](const ValueStatement* statement)
                  {
                      const ClytKeyword keyword = KeywordOf(*statement);
                      return OptionOf(*statement) != ClytOption::Other || keyword == ClytKeyword::FilledBy ||
                             (hasDoubleClick && keyword == ClytKeyword::DoubleClick);
                  });
    return items;
}

bool GetsItems(const Description& description, const std::string& name)
{
    const auto isAdded = [&](const ValueStatement& statement) {
        return lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Add &&
               statement.values.back() == name;
    };
    return SourceOf(description, name) != nullptr || std::ranges::any_of(description.values, isAdded) ||
           std::ranges::any_of(FillsOf(description, name),
                               [](const ClytControlFill* fill) { return AddsItems(*fill); });
}

std::vector<const ClytControlStatement*> OptionButtonsOf(const Description& description, const std::string& group)
{
    std::vector<const ClytControlStatement*> options;
    bool isInGroup = false;
    for (const ClytControlStatement& control : description.controls)
    {
        const Kind kind = KindOf(control);
        if (kind == Kind::OptionGroup)
            isInGroup = control.name == group.c_str();
        else if (kind == Kind::Option && isInGroup)
            options.push_back(&control);
    }
    return options;
}

std::optional<std::set<std::string>> PossibleValues(const Description& description, const ClytControlStatement& control)
{
    const std::string name = control.name.GetString();
    switch (KindOf(control))
    {
    case Kind::CheckBox: return CheckBoxValues(description, name);
    case Kind::OptionGroup: return OptionValues(description, name);
    case Kind::Option: return std::set<std::string>{OwnValue(description, name)};
    case Kind::DropList:
    case Kind::List:
    case Kind::CheckList: return ItemValues(description, name);
    default: return {};
    }
}

} // namespace lytdlg
