#include "Interpreter.h"

#include "Activation.h"
#include "Functions.h"

namespace macros
{

Interpreter::Interpreter(const std::string& source, bool is64Bit) : m_module(ReadModule(source, is64Bit))
{
    for (const auto& [name, variable] : m_module.variables)
        m_variables[name] = std::make_shared<Variable>(variable);
    // Each from those above it, before any procedure runs.
    const Procedure none;
    Activation scope(*this, none, {});
    for (const Constant& constant : m_module.constants)
        m_constants[constant.name] = Evaluator(scope, constant.value).Evaluate();
}

Value Interpreter::Call(const std::string& name, const Arguments& arguments)
{
    if (m_constants.size() < m_module.constants.size())
        throw MacroError(syntaxError, name + " is no constant");
    if (std::optional<Value> result = CallFunction(name, arguments))
        return *result;
    const auto declaration = m_module.declarations.find(name);
    if (declaration != m_module.declarations.end())
        return m_libraries.Call(declaration->second, arguments);
    const auto procedure = m_module.procedures.find(name);
    if (procedure == m_module.procedures.end())
        throw MacroError(syntaxError, name + " is not declared");
    return Activation(*this, procedure->second, arguments).Run();
}

std::optional<Value> Interpreter::FindConstant(const std::string& name) const
{
    const auto found = m_constants.find(name);
    return found != m_constants.end() ? found->second : ConstantOf(name);
}

std::set<int> Interpreter::Statements() const
{
    const std::set<std::string> without = {"dim", "const", "else", "end", "do"};
    std::set<int> lines;
    for (const auto& [name, procedure] : m_module.procedures)
    {
        for (const Line& line : procedure.body)
        {
            const bool isBareLoop = line.tokens.size() == 1 && line.tokens[0].Is("loop");
            if (!without.contains(line.tokens[0].text) && !isBareLoop)
                lines.insert(line.number);
        }
    }
    return lines;
}

} // namespace macros
