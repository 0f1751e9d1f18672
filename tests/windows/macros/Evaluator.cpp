#include "Evaluator.h"

#include "Activation.h"

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

// -1, 0 or 1.
int Compare(const Value& left, const Value& right)
{
    if (std::holds_alternative<Text>(left))
    {
        const int order = TextIn(left).characters.compare(TextIn(right).characters);
        return (order > 0 ? 1 : 0) - (order < 0 ? 1 : 0);
    }
    const long long difference = NumberIn(left) - NumberIn(right);
    return (difference > 0 ? 1 : 0) - (difference < 0 ? 1 : 0);
}

Value Truth(bool is)
{
    return is ? yes : no;
}

} // namespace

Value Evaluator::Evaluate()
{
    Value value = Or();
    if (!AtEnd())
        throw MacroError(syntaxError, "\"" + m_tokens[m_place].text + "\" is not expected here");
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

bool Evaluator::Skip(const char* word)
{
    const bool is = !AtEnd() && m_tokens[m_place].Is(word);
    m_place += is ? 1 : 0;
    return is;
}

std::string Evaluator::TakeName()
{
    if (AtEnd() || m_tokens[m_place].kind != TokenKind::Name)
        throw MacroError(syntaxError, "a name is missing");
    return m_tokens[m_place++].text;
}

// Both sides are evaluated in any case.
Value Evaluator::Or()
{
    Value value = And();
    while (Skip("or"))
    {
        const long long right = NumberIn(And());
        value = NumberIn(value) | right;
    }
    return value;
}

Value Evaluator::And()
{
    Value value = Not();
    while (Skip("and"))
    {
        const long long right = NumberIn(Not());
        value = NumberIn(value) & right;
    }
    return value;
}

Value Evaluator::Not()
{
    return Skip("not") ? Value(~NumberIn(Not())) : Comparison();
}

Value Evaluator::Comparison()
{
    static const struct
    {
        const char* sign;
        bool (*holds)(int order);
    } comparisons[] = {
        {"=", [](int order) { return order == 0; }},  {"<>", [](int order) { return order != 0; }},
        {"<=", [](int order) { return order <= 0; }}, {">=", [](int order) { return order >= 0; }},
        {"<", [](int order) { return order < 0; }},   {">", [](int order) { return order > 0; }},
    };
    Value value = Joined();
    for (const auto& comparison : comparisons)
    {
        if (Skip(comparison.sign))
            return Truth(comparison.holds(Compare(value, Joined())));
    }
    return value;
}

Value Evaluator::Joined()
{
    Value value = Sum();
    while (Skip("&"))
    {
        const std::wstring right = TextIn(Sum()).characters;
        value = TextFrom(TextIn(value).characters + right);
    }
    return value;
}

Value Evaluator::Sum()
{
    Value value = Product();
    for (;;)
    {
        if (Skip("+"))
            value = NumberIn(value) + NumberIn(Product());
        else if (Skip("-"))
            value = NumberIn(value) - NumberIn(Product());
        else
            return value;
    }
}

Value Evaluator::Product()
{
    Value value = Negated();
    while (Skip("*"))
        value = NumberIn(value) * NumberIn(Negated());
    return value;
}

Value Evaluator::Negated()
{
    return Skip("-") ? Value(-NumberIn(Negated())) : Single();
}

Value Evaluator::Single()
{
    if (Skip("("))
    {
        Value value = Or();
        if (!Skip(")"))
            throw MacroError(syntaxError, "a bracket is not closed");
        return value;
    }
    if (AtEnd())
        throw MacroError(syntaxError, "an expression is missing");
    const Token& token = m_tokens[m_place];
    if (token.kind == TokenKind::Name)
        return Named(TakeName());
    ++m_place;
    if (token.kind == TokenKind::Text)
        return TextFrom(Wide(token.text));
    if (token.kind == TokenKind::Number)
        return token.number;
    throw MacroError(syntaxError, "\"" + token.text + "\" begins no expression");
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
    const bool hasArguments = !AtEnd() && m_tokens[m_place].Is("(");
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
        if (!Skip(",") && (AtEnd() || !m_tokens[m_place].Is(")")))
            throw MacroError(syntaxError, "a bracket is not closed");
    }
    return arguments;
}

// A name alone is passed as the variable that it is; anything else as its value.
std::shared_ptr<Variable> Evaluator::Argument()
{
    const Token& first = m_tokens[m_place];
    const bool isAlone =
        m_place + 1 >= m_tokens.size() || m_tokens[m_place + 1].Is(",") || m_tokens[m_place + 1].Is(")");
    if (first.kind == TokenKind::Name && isAlone)
    {
        if (std::shared_ptr<Variable> variable = m_scope.Find(first.text))
        {
            ++m_place;
            return variable;
        }
    }
    Value value = Or();
    return std::make_shared<Variable>(Variable{TypeOfValue(value), std::move(value)});
}

} // namespace macros
