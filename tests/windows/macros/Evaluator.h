// Expressions of the language.
#pragma once

#include "LibraryCall.h"
#include "Source.h"

namespace macros
{

class Activation;

class Evaluator
{
public:
    Evaluator(Activation& scope, const Tokens& tokens, size_t place = 0)
        : m_scope(scope), m_tokens(tokens), m_place(place)
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

    Activation& m_scope; // the procedure that the expression is in
    const Tokens& m_tokens;
    size_t m_place;
};

} // namespace macros
