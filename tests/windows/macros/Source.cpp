#include "Source.h"

#include "Value.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <sstream>

namespace macros
{

namespace
{

// The language's own limits.
constexpr size_t longestLine = 1023;
constexpr int mostContinuations = 24;

// What a quotation marks: two marks are one.
std::string Unquoted(const std::string& quoted)
{
    return std::regex_replace(quoted, std::regex("\"\""), "\"");
}

std::string InSmallLetters(std::string name)
{
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return name;
}

Tokens Cut(const std::string& line)
{
    // A text, a number of either base, a name, a comment up to the end, or a sign.
    static const std::regex pattern("\"((?:[^\"]|\"\")*)\"|&H([0-9A-F]+)|(\\d+)|(\\w+)\\$?|'.*|<>|<=|>=|[^ ]");
    Tokens tokens;
    for (auto match = std::sregex_iterator(line.begin(), line.end(), pattern); match != std::sregex_iterator(); ++match)
    {
        const std::smatch& found = *match;
        if (found[1].matched)
            tokens.push_back({TokenKind::Text, Unquoted(found[1])});
        else if (found[2].matched || found[3].matched)
            tokens.push_back({TokenKind::Number, "",
                              std::stoll(found[2].str() + found[3].str(), nullptr, found[2].matched ? 16 : 10)});
        else if (found[4].matched)
            tokens.push_back({TokenKind::Name, InSmallLetters(found[4]), 0, found[4]});
        else if (found.str() == "\"")
            throw MacroError(syntaxError, "a quotation mark is not closed");
        else if (found.str().front() != '\'')
            tokens.push_back({TokenKind::Symbol, found.str()});
    }
    return tokens;
}

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

    bool IsOn() const { return std::ranges::find(m_on, false) == m_on.end(); }

    bool IsClosed() const { return m_on.empty(); }

private:
    bool m_is64Bit;
    std::vector<bool> m_on;
};

// One line of the language, from as many of the file as it is continued on.
std::string ReadLogicalLine(std::istringstream& file, std::string line, int& number)
{
    int continuations = 0;
    while (line.ends_with(" _"))
    {
        line.pop_back();
        std::string next;
        if (!std::getline(file, next) || ++continuations > mostContinuations)
            throw MacroError(syntaxError, "the line is continued too often");
        ++number;
        if (next.ends_with('\r'))
            next.pop_back();
        line += next;
    }
    return line;
}

} // namespace

bool Cursor::Skip(const char* word)
{
    const bool is = Sees(word);
    m_place += is ? 1 : 0;
    return is;
}

void Cursor::Expect(const char* word)
{
    if (!Skip(word))
        throw MacroError(syntaxError, std::string("\"") + word + "\" is missing");
}

const Token& Cursor::Take()
{
    if (AtEnd())
        throw MacroError(syntaxError, "the line ends too early");
    return (*m_tokens)[m_place++];
}

const Token& Cursor::Take(TokenKind kind)
{
    const Token& token = Take();
    if (token.kind != kind)
        throw MacroError(syntaxError, "\"" + token.text + "\" is not expected here");
    return token;
}

std::vector<Line> ReadLines(const std::string& source, bool is64Bit)
{
    std::vector<Line> lines;
    Conditions conditions(is64Bit);
    std::istringstream file(source);
    int number = 0;
    for (std::string line; std::getline(file, line);)
    {
        Line read{++number, {}};
        if (line.ends_with('\r'))
            line.pop_back();
        if (line.size() > longestLine)
            throw MacroError(syntaxError, "line " + std::to_string(number) + " is too long");
        read.tokens = Cut(ReadLogicalLine(file, line, number));
        if (!conditions.Take(read.tokens) && conditions.IsOn() && !read.tokens.empty())
            lines.push_back(read);
    }
    if (!conditions.IsClosed())
        throw MacroError(syntaxError, "an #If is not closed");
    return lines;
}

} // namespace macros
