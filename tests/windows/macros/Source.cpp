#include "Source.h"

#include "Value.h"

#include <cctype>
#include <sstream>

namespace macros
{

namespace
{

// The language's own limits.
constexpr size_t longestLine = 1023;
constexpr int mostContinuations = 24;

bool IsNameCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// Cuts one line into tokens.
class Cutter
{
public:
    explicit Cutter(const std::string& line) : m_line(line) {}

    Tokens Cut()
    {
        Tokens tokens;
        while (Skip())
            tokens.push_back(Next());
        return tokens;
    }

private:
    bool Skip()
    {
        while (m_place < m_line.size() && m_line[m_place] == ' ')
            ++m_place;
        return m_place < m_line.size() && m_line[m_place] != '\'';
    }

    Token Next()
    {
        const char first = m_line[m_place];
        if (first == '"')
            return Quoted();
        if (std::isdigit(static_cast<unsigned char>(first)) != 0)
            return Number(10);
        if (m_line.compare(m_place, 2, "&H") == 0)
        {
            m_place += 2;
            return Number(16);
        }
        return IsNameCharacter(first) ? Name() : Symbol();
    }

    Token Quoted()
    {
        Token token{TokenKind::Text, "", 0};
        for (++m_place; m_place < m_line.size(); ++m_place)
        {
            if (m_line[m_place] != '"')
                token.text += m_line[m_place];
            else if (m_line.compare(m_place, 2, "\"\"") == 0)
                token.text += m_line[m_place++];
            else
                break;
        }
        if (m_place++ >= m_line.size())
            throw MacroError(syntaxError, "a quotation mark is not closed");
        return token;
    }

    Token Number(int base)
    {
        size_t length = 0;
        const long long number = std::stoll(m_line.substr(m_place), &length, base);
        m_place += length;
        return {TokenKind::Number, "", number};
    }

    Token Name()
    {
        Token token{TokenKind::Name, "", 0};
        for (; m_place < m_line.size() && IsNameCharacter(m_line[m_place]); ++m_place)
        {
            token.written += m_line[m_place];
            token.text += static_cast<char>(std::tolower(static_cast<unsigned char>(m_line[m_place])));
        }
        if (m_place < m_line.size() && m_line[m_place] == '$')
            ++m_place;
        return token;
    }

    Token Symbol()
    {
        for (const char* pair : {"<>", "<=", ">="})
        {
            if (m_line.compare(m_place, 2, pair) != 0)
                continue;
            m_place += 2;
            return {TokenKind::Symbol, pair, 0};
        }
        return {TokenKind::Symbol, std::string(1, m_line[m_place++]), 0};
    }

    std::string m_line;
    size_t m_place = 0;
};

// Which stretches between #If and #End If are compiled.
class Conditions
{
public:
    explicit Conditions(bool is64Bit) : m_is64Bit(is64Bit) {}

    // True for a line that belongs to the compiler.
    bool Take(const Tokens& tokens)
    {
        if (tokens.empty() || !tokens[0].Is("#"))
            return false;
        if (tokens.size() > 2 && tokens[1].Is("if"))
            m_on.push_back(tokens[2].Is("not") ? !m_is64Bit : m_is64Bit);
        else if (tokens.size() > 1 && tokens[1].Is("else") && !m_on.empty())
            m_on.back() = !m_on.back();
        else if (tokens.size() > 2 && tokens[1].Is("end") && !m_on.empty())
            m_on.pop_back();
        else
            throw MacroError(syntaxError, "no line of the compiler");
        return true;
    }

    bool IsOn() const
    {
        for (const bool on : m_on)
        {
            if (!on)
                return false;
        }
        return true;
    }

    bool IsClosed() const { return m_on.empty(); }

private:
    bool m_is64Bit;
    std::vector<bool> m_on;
};

bool IsContinued(const std::string& line)
{
    return line.size() > 1 && line.compare(line.size() - 2, 2, " _") == 0;
}

// One line of the language, from as many of the file as it is continued on.
std::string ReadLogicalLine(std::istringstream& file, std::string line, int& number)
{
    int continuations = 0;
    while (IsContinued(line))
    {
        line.pop_back();
        std::string next;
        if (!std::getline(file, next) || ++continuations > mostContinuations)
            throw MacroError(syntaxError, "the line is continued too often");
        ++number;
        if (!next.empty() && next.back() == '\r')
            next.pop_back();
        line += next;
    }
    return line;
}

} // namespace

std::vector<Line> ReadLines(const std::string& source, bool is64Bit)
{
    std::vector<Line> lines;
    Conditions conditions(is64Bit);
    std::istringstream file(source);
    int number = 0;
    for (std::string line; std::getline(file, line);)
    {
        Line read{++number, {}};
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.size() > longestLine)
            throw MacroError(syntaxError, "line " + std::to_string(number) + " is too long");
        read.tokens = Cutter(ReadLogicalLine(file, line, number)).Cut();
        if (!conditions.Take(read.tokens) && conditions.IsOn() && !read.tokens.empty())
            lines.push_back(read);
    }
    if (!conditions.IsClosed())
        throw MacroError(syntaxError, "an #If is not closed");
    return lines;
}

} // namespace macros
