#include "Activation.h"

#include <utility>

namespace macros
{

namespace
{

Tokens Part(const Tokens& tokens, size_t start, size_t end)
{
    return {tokens.begin() + static_cast<ptrdiff_t>(start), tokens.begin() + static_cast<ptrdiff_t>(end)};
}

// The place of a word outside brackets; the number of tokens without it.
size_t PlaceOf(const Tokens& tokens, const char* word, size_t start = 0)
{
    int depth = 0;
    for (size_t place = start; place < tokens.size(); ++place)
    {
        if (depth == 0 && tokens[place].Is(word))
            return place;
        depth += tokens[place].Is("(") ? 1 : 0;
        depth -= tokens[place].Is(")") ? 1 : 0;
    }
    return tokens.size();
}

bool OpensBlock(const Tokens& tokens)
{
    return tokens[0].Is("do") || tokens[0].Is("select") || (tokens[0].Is("if") && tokens.back().Is("then"));
}

bool ClosesBlock(const Tokens& tokens)
{
    return tokens[0].Is("loop") || tokens[0].Is("end");
}

bool IsLabel(const Tokens& tokens)
{
    return tokens.size() == 2 && tokens[1].Is(":");
}

} // namespace

Activation::Activation(Interpreter& interpreter, const Procedure& procedure, const Arguments& arguments)
    : m_interpreter(interpreter), m_procedure(procedure)
{
    const std::vector<Parameter>& parameters = procedure.signature.parameters;
    if (arguments.size() > parameters.size())
        throw MacroError(syntaxError, procedure.signature.name + " has fewer parameters");
    for (size_t i = 0; i < parameters.size(); ++i)
    {
        if (i < arguments.size())
            Bind(parameters[i], arguments[i]);
        else
            BindLeftOut(parameters[i]);
    }
    if (procedure.signature.isFunction)
        Declare(procedure.signature.name, procedure.signature.result);
}

void Activation::Bind(const Parameter& parameter, std::shared_ptr<Variable> argument)
{
    if (argument->type != parameter.type)
        throw MacroError(typeMismatch, parameter.name + " of " + m_procedure.signature.name + " has another type");
    m_locals[parameter.name] = parameter.isByRef ? std::move(argument) : std::make_shared<Variable>(*argument);
}

void Activation::BindLeftOut(const Parameter& parameter)
{
    if (!parameter.isOptional)
        throw MacroError(syntaxError, m_procedure.signature.name + " needs " + parameter.name);
    Declare(parameter.name, parameter.type);
    if (!parameter.otherwise.empty())
        m_locals[parameter.name]->value = Evaluator(*this, parameter.otherwise).Evaluate();
}

void Activation::Declare(const std::string& name, Type type)
{
    if (!m_locals.emplace(name, std::make_shared<Variable>(Variable{type, InitialValue(type)})).second)
        throw MacroError(syntaxError, name + " is declared twice");
}

Value Activation::Run()
{
    for (std::optional<size_t> start = 0; start;)
        start = RunFrom(*start);
    return m_procedure.signature.isFunction ? m_locals[m_procedure.signature.name]->value : Value(0LL);
}

std::optional<size_t> Activation::RunFrom(size_t start)
{
    try
    {
        RunLines(start, m_procedure.body.size());
        return std::nullopt;
    }
    catch (const MacroError& error)
    {
        if (m_handler.empty() || error.Number() == syntaxError)
            throw;
        m_caught = error.what();
        return LineOfHandler();
    }
}

size_t Activation::LineOfHandler()
{
    const std::string label = std::exchange(m_handler, "");
    for (size_t line = 0; line < m_procedure.body.size(); ++line)
    {
        if (IsLabel(TokensAt(line)) && TokensAt(line)[0].Is(label.c_str()))
            return line + 1;
    }
    throw MacroError(syntaxError, "there is no label " + label);
}

std::shared_ptr<Variable> Activation::Find(const std::string& name) const
{
    const auto local = m_locals.find(name);
    if (local != m_locals.end())
        return local->second;
    const auto variable = m_interpreter.m_variables.find(name);
    return variable != m_interpreter.m_variables.end() ? variable->second : nullptr;
}

std::optional<Value> Activation::FindConstant(const std::string& name) const
{
    const auto found = m_constants.find(name);
    return found != m_constants.end() ? found->second : m_interpreter.FindConstant(name);
}

Activation::Flow Activation::RunLines(size_t first, size_t last)
{
    for (size_t line = first; line < last; ++line)
    {
        const size_t start = line;
        try
        {
            const Flow flow = RunAt(line);
            if (flow != Flow::Next)
                return flow;
        }
        catch (const MacroError& error)
        {
            if (error.Number() != syntaxError && error.Number() != typeMismatch)
                throw;
            const std::string place = "line " + std::to_string(m_procedure.body[start].number);
            throw MacroError(error.Number(), place + ": " + error.what());
        }
    }
    return Flow::Next;
}

Activation::Flow Activation::RunAt(size_t& line)
{
    const Tokens& tokens = TokensAt(line);
    Note(line);
    if (tokens[0].Is("if"))
        return RunIf(line);
    if (tokens[0].Is("select"))
        return RunChoice(line);
    if (tokens[0].Is("do"))
        return RunLoop(line);
    return RunStatement(tokens);
}

size_t Activation::EndOf(size_t line) const
{
    int depth = 0;
    for (; line < m_procedure.body.size(); ++line)
    {
        depth += OpensBlock(TokensAt(line)) ? 1 : 0;
        depth -= ClosesBlock(TokensAt(line)) ? 1 : 0;
        if (depth == 0)
            return line;
    }
    throw MacroError(syntaxError, "a block does not end");
}

std::vector<size_t> Activation::PartsOf(size_t line, size_t end, const std::set<std::string>& words) const
{
    std::vector<size_t> parts;
    while (++line < end)
    {
        if (words.contains(TokensAt(line)[0].text))
            parts.push_back(line);
        else if (OpensBlock(TokensAt(line)))
            line = EndOf(line);
    }
    parts.push_back(end);
    return parts;
}

bool Activation::Holds(const Tokens& tokens, size_t start, size_t end)
{
    const Tokens condition = Part(tokens, start, end);
    return NumberIn(Evaluator(*this, condition).Evaluate()) != no;
}

Activation::Flow Activation::RunIf(size_t& line)
{
    const Tokens& tokens = TokensAt(line);
    const size_t then = PlaceOf(tokens, "then");
    if (then + 1 < tokens.size())
    {
        const size_t otherwise = PlaceOf(tokens, "else", then);
        if (Holds(tokens, 1, then))
            return RunStatement(Part(tokens, then + 1, otherwise));
        return otherwise < tokens.size() ? RunStatement(Part(tokens, otherwise + 1, tokens.size())) : Flow::Next;
    }
    const size_t end = EndOf(line);
    size_t start = std::exchange(line, end);
    for (const size_t next : PartsOf(start, end, {"elseif", "else"}))
    {
        const Tokens& head = TokensAt(start);
        Note(start);
        if (head[0].Is("else") || Holds(head, 1, PlaceOf(head, "then")))
            return RunLines(start + 1, next);
        start = next;
    }
    return Flow::Next;
}

Activation::Flow Activation::RunChoice(size_t& line)
{
    const Tokens chosen = Part(TokensAt(line), 2, TokensAt(line).size());
    const long long value = NumberIn(Evaluator(*this, chosen).Evaluate());
    const size_t end = EndOf(line);
    const std::vector<size_t> cases = PartsOf(std::exchange(line, end), end, {"case"});
    for (size_t i = 0; i + 1 < cases.size(); ++i)
    {
        Note(cases[i]);
        const Tokens& head = TokensAt(cases[i]);
        bool isMeant = head[1].Is("else");
        for (const auto& listed : isMeant ? Arguments() : Evaluator(*this, head, 1).EvaluateArguments())
            isMeant = isMeant || NumberIn(listed->value) == value;
        if (isMeant)
            return RunLines(cases[i] + 1, cases[i + 1]);
    }
    return Flow::Next;
}

Activation::Flow Activation::RunLoop(size_t& line)
{
    const size_t start = line;
    line = EndOf(start);
    const Tokens& head = TokensAt(start);
    const Tokens& tail = TokensAt(line);
    for (;;)
    {
        if (head.size() > 2 && !Holds(head, 2, head.size()))
            return Flow::Next;
        const Flow flow = RunLines(start + 1, line);
        if (flow != Flow::Next)
            return flow == Flow::LeaveLoop ? Flow::Next : flow;
        Note(line);
        if (tail.size() > 2 && !Holds(tail, 2, tail.size()))
            return Flow::Next;
    }
}

Activation::Flow Activation::RunStatement(const Tokens& tokens)
{
    if (IsLabel(tokens))
        return Flow::Next;
    const bool isLonger = tokens.size() > 1;
    if (tokens[0].Is("exit"))
        return tokens[1].Is("do") ? Flow::LeaveLoop : Flow::LeaveProcedure;
    if (tokens[0].Is("dim"))
        RunDeclaration(tokens);
    else if (tokens[0].Is("const"))
        RunConstant(tokens);
    else if (tokens[0].Is("set"))
        RunAssignment(tokens, 1);
    else if (tokens[0].Is("err"))
        Raise(tokens);
    else if (tokens[0].Is("on") && tokens.size() == 4)
        m_handler = tokens[3].text; // On Error GoTo label
    else if (isLonger && tokens[1].Is("="))
        RunAssignment(tokens, 0);
    else if (isLonger && tokens[1].Is("."))
        AddItem(tokens);
    else
        Call(tokens[0].text, Evaluator(*this, tokens, 1).EvaluateArguments());
    return Flow::Next;
}

void Activation::RunDeclaration(const Tokens& tokens)
{
    for (size_t place = 1; place + 2 < tokens.size(); place += 4)
        Declare(tokens[place].text, TypeOf(tokens[place + 2].text));
}

void Activation::RunConstant(const Tokens& tokens)
{
    m_constants[tokens[1].text] = Evaluator(*this, tokens, PlaceOf(tokens, "=") + 1).Evaluate();
}

void Activation::RunAssignment(const Tokens& tokens, size_t start)
{
    const std::shared_ptr<Variable> variable = Find(tokens[start].text);
    if (variable == nullptr)
        throw MacroError(syntaxError, tokens[start].text + " is not declared");
    Value value = Evaluator(*this, tokens, start + 2).Evaluate();
    if ((variable->type == Type::Objects) != (start == 1))
        throw MacroError(typeMismatch, "Set is for collections, and for nothing else");
    Assign(*variable, std::move(value));
}

void Activation::AddItem(const Tokens& tokens)
{
    const std::shared_ptr<Variable> variable = Find(tokens[0].text);
    if (variable == nullptr || tokens.size() < 4 || !tokens[2].Is("add"))
        throw MacroError(syntaxError, "a collection has no such member");
    ObjectIn(variable->value).items.push_back(Evaluator(*this, tokens, 3).Evaluate());
}

void Activation::Raise(const Tokens& tokens)
{
    const Arguments arguments = Evaluator(*this, tokens, 3).EvaluateArguments();
    throw MacroError(NumberIn(arguments.at(0)->value), Bytes(TextIn(arguments.at(2)->value).characters));
}

} // namespace macros
