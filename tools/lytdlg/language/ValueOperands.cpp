#include "lytdlg/language/ValueOperands.h"

#include "lytdlg/judge/ControlValues.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// What the operands of an action are, in their order.
struct OperandForm
{
    ClytAction action;
    Meaning meanings[4];
    bool ClytType::*fits[2];
};

constexpr OperandForm operandForms[] = {
    {ClytAction::Visible, {Meaning::Control, Meaning::TextKey}, {}},
    {ClytAction::Active, {Meaning::Control, Meaning::TextKey}, {}},
    {ClytAction::Add, {Meaning::Control, Meaning::Control}, {&ClytType::isOpenList, &ClytType::takesItems}},
    {ClytAction::Delete, {Meaning::Control}, {&ClytType::hasItems}},
    {ClytAction::Up, {Meaning::Control}, {&ClytType::hasItems}},
    {ClytAction::Down, {Meaning::Control}, {&ClytType::hasItems}},
    {ClytAction::Fill, {Meaning::Control}, {&ClytType::isFilled}},
    {ClytAction::Dialog, {Meaning::Dialog, Meaning::Part, Meaning::Group}, {}},
    {ClytAction::Action, {Meaning::Library, Meaning::Function, Meaning::Group, Meaning::Part}, {}},
};

// A function is one of the library that the statement names first.
NamedWord Named(Meaning meaning, const ValueStatement& statement, bool ClytType::*fits = nullptr)
{
    return {meaning, "", {}, false, meaning == Meaning::Function ? statement.values.front() : "", fits};
}

NamedWord OperandOfAction(const ValueStatement& statement, size_t index)
{
    const auto action = lytMeaningOf<ClytAction>(statement.keyword.c_str());
    const auto* const form = std::ranges::find(operandForms, action, &OperandForm::action);
    if (form == std::end(operandForms) || index >= std::size(form->meanings))
        return {};
    return Named(form->meanings[index], statement, index < std::size(form->fits) ? form->fits[index] : nullptr);
}

NamedWord OperandOfSource(const Description& description, const ValueStatement& statement, size_t index)
{
    using enum Meaning;
    static constexpr Meaning meanings[] = {Library, Function, Function, Group, TextKey};
    const bool isLess = KindOfControl(description, statement.name) == Kind::Field && index == 2;
    return index < std::size(meanings) && !isLess ? Named(meanings[index], statement) : NamedWord();
}

std::string GroupNameOf(const Description& description, const std::string& name)
{
    const ClytControlStatement* option = description.FindControl(name);
    const ClytControlStatement* group = option != nullptr ? GroupOf(description, *option) : nullptr;
    return group != nullptr ? group->name.GetString() : name;
}

} // namespace

NamedWord OperandOf(const Description& description, const ValueStatement& statement, int index)
{
    const bool isFirst = index < 0;
    const bool isKeyword = isFirst || (statement.keyword.empty() && statement.values.size() == 1);
    const auto later = static_cast<size_t>(std::max(0, index));
    const auto value = [&](const std::string& scope, bool isDeclared) {
        return NamedWord{Meaning::Value, "", {}, isDeclared, scope};
    };
    const Role role = RoleOf(description, statement);
    switch (role)
    {
    case Role::Nothing:
    case Role::Option: return {isKeyword ? Meaning::Option : Meaning::Nothing};
    case Role::Item: return isFirst ? NamedWord{Meaning::TextKey} : value(statement.name, true);
    case Role::DoubleClick:
        return Named(isKeyword ? Meaning::Keyword : Meaning::Control, statement, &ClytType::isButton);
    case Role::Source: return isFirst ? NamedWord{Meaning::Keyword} : OperandOfSource(description, statement, later);
    case Role::Action: return isKeyword ? NamedWord{Meaning::Keyword} : OperandOfAction(statement, later);
    case Role::OptionValue: return value(GroupNameOf(description, statement.name), true);
    default: return isFirst ? NamedWord{Meaning::Keyword} : value(statement.name, role != Role::Default);
    }
}

} // namespace lytdlg
