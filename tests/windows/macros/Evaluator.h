// Expressions of the language.
#pragma once

#include "LibraryCall.h"
#include "Source.h"

#include <optional>

namespace macros
{

// What expressions see of the procedure that they are in, and of its module.
class Scope
{
public:
    virtual ~Scope() = default;
    // The variable of that name, or null.
    virtual std::shared_ptr<Variable> Find(const std::string& name) = 0;
    // Raises MacroError when there is no function or procedure of that name.
    virtual Value Call(const std::string& name, const Arguments& arguments) = 0;
    virtual std::optional<Value> FindConstant(const std::string& name) = 0;
    virtual long long LastError() = 0;
    // The text of the error that was caught last.
    virtual std::string Description() { return ""; }
};

class Evaluator
{
public:
    Evaluator(Scope& scope, const Tokens& tokens, size_t place = 0) : m_scope(scope), m_tokens(tokens), m_place(place)
    {
    }

    // The value of all tokens that are left.
    Value Evaluate();
    // The arguments that are left, with commas between them.
    Arguments EvaluateArguments();

private:
    bool AtEnd() const { return m_place >= m_tokens.size(); }
    bool Skip(const char* word);
    std::string TakeName();
    Value Or();
    Value And();
    Value Not();
    Value Comparison();
    Value Joined();
    Value Sum();
    Value Product();
    Value Negated();
    Value Single();
    Value Named(const std::string& name);
    Value Member(const Value& object);
    Arguments ArgumentsInBrackets();
    std::shared_ptr<Variable> Argument();

    Scope& m_scope;
    const Tokens& m_tokens;
    size_t m_place;
};

} // namespace macros
