// Expressions of the language.
#pragma once

#include "LibraryCall.h"
#include "Source.h"

namespace macros
{

class Activation;

class Evaluator : private Cursor
{
public:
    Evaluator(Activation& scope, const Tokens& tokens, size_t place = 0) : Cursor(tokens, place), m_scope(scope) {}

    // The value of all tokens that are left.
    Value Evaluate();
    // The arguments that are left, with commas between them.
    Arguments EvaluateArguments();

private:
    // What the operations of a level, and those that bind closer, join.
    Value Joined(size_t level);
    Value Single();
    Value Named(const std::string& name);
    Value Member(const Value& object);
    Arguments ArgumentsInBrackets();
    std::shared_ptr<Variable> Argument();

    Activation& m_scope; // the procedure that the expression is in
};

} // namespace macros
