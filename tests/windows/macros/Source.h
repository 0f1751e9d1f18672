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
    std::string text = {};
    long long number = 0;
    std::string written = {}; // a name as it is written

    bool Is(const char* word) const { return kind != TokenKind::Text && text == word; }
};

using Tokens = std::vector<Token>;

// Goes through the tokens of a line.
class Cursor
{
public:
    explicit Cursor(const Tokens& tokens, size_t place = 0) : m_tokens(&tokens), m_place(place) {}

    bool AtEnd() const { return m_place >= m_tokens->size(); }
    // Whether the next one, or one after it, is that word.
    bool Sees(const char* word, size_t ahead = 0) const
    {
        return m_place + ahead < m_tokens->size() && (*m_tokens)[m_place + ahead].Is(word);
    }
    bool Skip(const char* word);
    // These raise MacroError for any other token.
    void Expect(const char* word);
    const Token& Take();
    const Token& Take(TokenKind kind);

protected:
    const Tokens* m_tokens;
    size_t m_place;
};

struct Line
{
    int number = 0; // of its first line in the file
    Tokens tokens;
};

// Raises MacroError, with the number of the line, for what is no line of the language.
std::vector<Line> ReadLines(const std::string& source, bool is64Bit);

} // namespace macros
