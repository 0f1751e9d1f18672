#include "Evaluator.h"

#include "Activation.h"

#include <algorithm>
#include <compare>

namespace macros
{

namespace
{

Type TypeOfValue(const Value& value)
{
    if (std::holds_alternative<Text>(value))
        return Type::Texts;
    return std::holds_alternative<Object>(value) ? Type::Objects : Type::Numbers;
}

std::strong_ordering Order(const Value& left, const Value& right)
{
    if (std::holds_alternative<Text>(left))
        return TextIn(left).characters <=> TextIn(right).characters;
    return NumberIn(left) <=> NumberIn(right);
}

Value Truth(bool is)
{
    return is ? yes : no;
}

struct Operation
{
    const char* sign;
    Value (*apply)(const Value& left, const Value& right);
};

// From the one that binds least. Both sides are evaluated in any case.
const std::vector<std::vector<Operation>> operations = {
    {{"or", [](const Value& left, const Value& right) -> Value { return NumberIn(left) | NumberIn(right); }}},
    {{"and", [](const Value& left, const Value& right) -> Value { return NumberIn(left) & NumberIn(right); }}},
    {{"=", [](const Value& left, const Value& right) { return Truth(Order(left, right) == 0); }},
     {"<>", [](const Value& left, const Value& right) { return Truth(Order(left, right) != 0); }},
     {"<=", [](const Value& left, const Value& right) { return Truth(Order(left, right) <= 0); }},
     {">=", [](const Value& left, const Value& right) { return Truth(Order(left, right) >= 0); }},
     {"<", [](const Value& left, const Value& right) { return Truth(Order(left, right) < 0); }},
     {">", [](const Value& left, const Value& right) { return Truth(Order(left, right) > 0); }}},
    {{"&",
      [](const Value& left, const Value& right) -> Value
      { return TextFrom(TextIn(left).characters + TextIn(right).characters); }}},
    {{"+", [](const Value& left, const Value& right) -> Value { return NumberIn(left) + NumberIn(right); }},
     {"-", [](const Value& left, const Value& right) -> Value { return NumberIn(left) - NumberIn(right); }}},
    {{"*", [](const Value& left, const Value& right) -> Value { return NumberIn(left) * NumberIn(right); }}},
};
constexpr size_t levelOfComparisons = 2;

} // namespace

Value Evaluator::Evaluate()
{
    Value value = Joined(0);
    if (!AtEnd())
        throw MacroError(syntaxError, "\"" + Take().text + "\" is not expected here");
    return value;
}

Arguments Evaluator::EvaluateArguments()
{
    Arguments arguments;
    while (!AtEnd())
    {
        arguments.push_back(Argument());
        if (!AtEnd() && !Skip(","))
            throw MacroError(syntaxError, "a comma is missing between arguments");
    }
    return arguments;
}

Value Evaluator::Joined(size_t level)
{
    if (level == levelOfComparisons && Skip("not"))
        return ~NumberIn(Joined(level));
    if (level == operations.size())
        return Skip("-") ? Value(-NumberIn(Joined(level))) : Single();
    Value value = Joined(level + 1);
    const auto isNext = [this](const Operation& operation) { return Skip(operation.sign); };
    for (;;)
    {
        const auto operation = std::ranges::find_if(operations[level], isNext);
        if (operation == operations[level].end())
            return value;
        value = operation->apply(value, Joined(level + 1));
    }
}

Value Evaluator::Single()
{
    if (Skip("("))
    {
        Value value = Joined(0);
        Expect(")");
        return value;
    }
    const Token& token = Take();
    switch (token.kind)
    {
    case TokenKind::Name: return Named(token.text);
    case TokenKind::Text: return TextFrom(Wide(token.text));
    case TokenKind::Number: return token.number;
    default: throw MacroError(syntaxError, "\"" + token.text + "\" begins no expression");
    }
}

Value Evaluator::Named(const std::string& name)
{
    if (name == "new" && Skip("collection"))
        return std::make_shared<Collection>();
    if (name == "err")
    {
        if (Skip(".") && Skip("lastdllerror"))
            return m_scope.LastError();
        if (Skip("description"))
            return TextFrom(Wide(m_scope.Description()));
        throw MacroError(syntaxError, "Err has no such member here");
    }
    // A function's own name is its result, and a call when arguments follow.
    const bool hasArguments = Sees("(");
    const std::shared_ptr<Variable> variable = m_scope.Find(name);
    if (variable != nullptr && !hasArguments)
        return Skip(".") ? Member(variable->value) : variable->value;
    if (const std::optional<Value> constant = m_scope.FindConstant(name))
        return *constant;
    return m_scope.Call(name, hasArguments ? ArgumentsInBrackets() : Arguments());
}

Value Evaluator::Member(const Value& object)
{
    const std::vector<Value>& items = ObjectIn(object).items;
    if (Skip("count"))
        return static_cast<long long>(items.size());
    if (!Skip("item"))
        throw MacroError(syntaxError, "a collection has no such member");
    const Arguments arguments = ArgumentsInBrackets();
    const long long index = NumberIn(arguments.at(0)->value);
    if (index < 1 || index > static_cast<long long>(items.size()))
        throw MacroError(9, "Subscript out of range");
    return items[static_cast<size_t>(index) - 1];
}

Arguments Evaluator::ArgumentsInBrackets()
{
    Skip("(");
    Arguments arguments;
    while (!Skip(")"))
    {
        arguments.push_back(Argument());
        if (!Skip(",") && !Sees(")"))
            throw MacroError(syntaxError, "a bracket is not closed");
    }
    return arguments;
}

// A name alone is passed as the variable that it is; anything else as its value.
std::shared_ptr<Variable> Evaluator::Argument()
{
    const Token& first = (*m_tokens)[m_place];
    const bool isAlone = m_place + 1 == m_tokens->size() || Sees(",", 1) || Sees(")", 1);
    if (first.kind == TokenKind::Name && isAlone)
    {
        if (std::shared_ptr<Variable> variable = m_scope.Find(first.text))
        {
            Take();
            return variable;
        }
    }
    Value value = Joined(0);
    return std::make_shared<Variable>(Variable{TypeOfValue(value), std::move(value)});
}

} // namespace macros
