// A module's declarations.
#pragma once

#include "Source.h"
#include "Value.h"

#include <map>
#include <string>
#include <vector>

namespace macros
{

struct Parameter
{
    std::string name;
    Type type = Type::Numbers;
    bool isByRef = false;
    bool isOptional = false;
    bool isPointer = false; // as wide as an address
    Tokens otherwise;       // the value of one that is left out; empty for the type's own
};

// The head of a procedure or of a declared function.
struct Signature
{
    std::string name;
    std::string written; // libraries tell small letters from capitals
    std::vector<Parameter> parameters;
    bool isFunction = false;
    Type result = Type::Numbers;
    bool isResultPointer = false;
};

// A function of a library.
struct Declaration
{
    Signature signature;
    std::string library;
    std::string function; // as the library names it
};

struct Procedure
{
    Signature signature;
    std::vector<Line> body;
};

struct Constant
{
    std::string name;
    Tokens value; // an expression; none: one more than that of the constant before
};

struct Module
{
    std::map<std::string, Declaration> declarations;
    std::map<std::string, Procedure> procedures;
    std::map<std::string, Variable> variables;
    std::vector<Constant> constants; // in their order, as later ones use earlier ones
    bool isPrivate = false;          // its procedures are off the list of macros
};

// Raises MacroError, with the number of the line, for a mistake. Every name may be there once.
Module ReadModule(const std::string& source, bool is64Bit);
// The type that a word after "As" names.
Type TypeOf(const std::string& word);

} // namespace macros
