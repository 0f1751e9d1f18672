// The text of a module as lines of tokens: comments left out, continued lines joined, conditions of the compiler decided.
#pragma once

#include <string>
#include <vector>

namespace macros
{

enum class TokenKind
{
    Name, // in small letters, as the language does not tell them from capitals; a trailing $ is left out
    Number,
    Text,
    Symbol
};

struct Token
{
    TokenKind kind = TokenKind::Symbol;
    std::string text;
    long long number = 0;
    std::string written = {}; // a name as it is written

    bool Is(const char* word) const { return kind != TokenKind::Text && text == word; }
};

using Tokens = std::vector<Token>;

struct Line
{
    int number = 0; // of its first line in the file
    Tokens tokens;
};

// Raises MacroError, with the number of the line, for what is no line of the language.
std::vector<Line> ReadLines(const std::string& source, bool is64Bit);

} // namespace macros
