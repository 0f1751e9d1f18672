#include "lytdlg/judge/StatementText.h"

#include "dlgfile/Tokenize.h"
#include "lytdlg/judge/Names.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

std::string SignInQuotes(char ch)
{
    return ch == '\t' ? "a tab" : ch == '\n' ? "the end of the line" : "\"" + std::string(1, ch) + "\"";
}

// A statement up to the word that its reader refused.
class RefusedStatement
{
public:
    RefusedStatement(const std::string& line, Section section, int column) : m_words(TokensOf(line, section))
    {
        const auto refused =
            std::ranges::find_if(m_words, [&](const LineToken& word) { return word.column >= column; });
        m_refused = static_cast<size_t>(refused - m_words.begin());
    }

    const std::vector<LineToken>& Words() const { return m_words; }
    bool EndsTooEarly() const { return m_refused == m_words.size(); }
    // The refused word; the last one when the line ends too early.
    const LineToken& Refused() const { return m_words[std::min(m_refused, m_words.size() - 1)]; }
    char EndOf(size_t word) const { return word < m_words.size() ? m_words[word].delimiter : '\0'; }
    std::string Text(size_t word) const { return word < m_words.size() ? m_words[word].text : ""; }

    // The name before the bracket that is open at the refused word; null when none is.
    const LineToken* OpenList() const
    {
        const LineToken* open = nullptr;
        for (size_t word = 0; word < m_refused; ++word)
        {
            if (m_words[word].delimiter == '(')
                open = &m_words[word];
            else if (m_words[word].delimiter == ')')
                open = nullptr;
        }
        return open;
    }

    // What is wrong inside an open bracket; empty when none is open.
    std::string WrongInList() const
    {
        const LineToken* open = OpenList();
        if (open == nullptr)
            return "";
        const std::string after = open->text.empty() ? "" : " after " + InQuotes(open->text);
        if (EndsTooEarly() || Refused().delimiter == '\n')
            return "the brackets" + after + " are not closed by \")\"";
        return SignInQuotes(Refused().delimiter) + " stands in the brackets" + after + ", where commas separate";
    }

private:
    std::vector<LineToken> m_words;
    size_t m_refused;
};

std::string MissingAfter(const std::string& what, const std::string& word)
{
    return what + " is missing" + (word.empty() ? "" : " after " + InQuotes(word));
}

// Where a blank is in place of a delimiter, the word before it.
std::string BeforeBlank(const std::string& word)
{
    return word.substr(0, word.find(' '));
}

std::string WrongInHead(const RefusedStatement& statement)
{
    return statement.Words().size() == 1 ? MissingAfter("a word", statement.Text(0))
                                         : "more than one word follows " + InQuotes(statement.Text(0));
}

std::string WrongInLayout(const RefusedStatement& statement)
{
    const std::vector<LineToken>& words = statement.Words();
    if (words.size() == 1)
        return statement.Text(0) == "End" ? MissingAfter("the word Dialog", "End")
                                          : "nothing follows the word " + InQuotes(statement.Text(0));
    if (statement.Refused().text == "." && !statement.EndsTooEarly())
        return "no name follows the point";
    const auto name =
        std::find_if(words.begin() + 1, words.end(), [](const LineToken& word) { return word.text.starts_with('.'); });
    const auto count = name - words.begin() - 1;
    return "four numbers are needed, left, top, width and height; here " +
           (count == 1 ? std::string("is one") : "are " + std::to_string(count));
}

std::string WrongInValues(const RefusedStatement& statement)
{
    const std::string word = BeforeBlank(statement.Text(0));
    if (word != statement.Text(0))
        return MissingAfter("\"=\" or \":\"", word) + "; a blank does not separate";
    return "nothing is said of " + InQuotes(word);
}

std::string WrongInDependencies(const RefusedStatement& statement)
{
    if (statement.EndOf(0) != '/')
        return MissingAfter("\"/\"", BeforeBlank(statement.Text(0)));
    if (statement.Words().size() == 1)
        return MissingAfter("a state word", statement.Text(0));
    if (statement.EndOf(1) != '=')
        return MissingAfter("\"=\"", BeforeBlank(statement.Text(1)));
    const std::string list = statement.WrongInList();
    return !list.empty() ? list
                         : SignInQuotes(statement.Refused().delimiter) + " stands where a comma separates conditions";
}

std::string WrongInEvaluation(const RefusedStatement& statement)
{
    if (statement.EndOf(0) == '=')
        return statement.Words().size() == 1 ? MissingAfter("a value", "=")
                                             : MissingAfter("\":\" with the key of a message", statement.Text(1));
    if (statement.EndOf(0) != '(')
        return MissingAfter("\"=\" or \"(\"", BeforeBlank(statement.Text(0)));
    const std::string list = statement.WrongInList();
    if (!list.empty())
        return list;
    const std::vector<LineToken>& words = statement.Words();
    const auto sign = std::ranges::find_if(words, [](const LineToken& word) { return word.delimiter == '='; });
    if (sign == words.end())
        return "\"=\" must follow the values of " + InQuotes(statement.Text(0));
    if (std::find_if(sign, words.end(), [](const LineToken& word) { return word.delimiter == '('; }) == words.end())
        return "a second control with its values in brackets must follow \"=\"";
    return "\":\" with the key of a message must follow the values";
}

std::string WrongInScan(const RefusedStatement& statement)
{
    const std::vector<LineToken>& words = statement.Words();
    const auto isBeforeFills = [](const LineToken& word) { return word.delimiter == '='; };
    const auto sign = std::find_if(words.begin() + 1, words.end(), isBeforeFills);
    const bool isInFills = sign != words.end() && sign->column < statement.Refused().column;
    if (!isInFills)
        return statement.Words().size() == 2
                   ? "no length or separator follows \"(\""
                   : "each length or separator needs the statement that goes on, and \"=\" or "
                     "\")\" after the last";
    const LineToken* open = statement.OpenList();
    if (open != nullptr && !open->text.empty())
        return statement.WrongInList();
    if (statement.EndsTooEarly())
        return "a control is missing after \"=\"";
    if (statement.Refused().text.empty())
        return "the name of a control is missing before " + SignInQuotes(statement.Refused().delimiter);
    return SignInQuotes(statement.Refused().delimiter) + " after " + InQuotes(statement.Refused().text) +
           " stands where a comma separates fills";
}

std::string WrongInInput(const RefusedStatement& statement)
{
    if (statement.EndOf(0) != ':')
        return MissingAfter("\":\"", BeforeBlank(statement.Text(0)));
    if (statement.Words().size() == 1)
        return MissingAfter("what the statement does", statement.Text(0));
    if (statement.Text(1).empty() && statement.EndOf(1) == '(')
        return WrongInScan(statement);
    if (statement.EndOf(1) == '=')
        return MissingAfter("the statement that goes on", "=");
    const std::string list = statement.WrongInList();
    if (!list.empty())
        return list;
    const std::vector<LineToken>& words = statement.Words();
    if (std::ranges::none_of(words, [](const LineToken& word) { return word.delimiter == '='; }))
        return "\"=\" with two statements, one for each case, is missing";
    return "two statements must follow \"=\": one when the condition holds, one when not";
}

std::string WrongInOutput(const RefusedStatement& statement)
{
    const std::vector<LineToken>& words = statement.Words();
    const bool hasSign = std::ranges::any_of(words, [](const LineToken& word) { return word.delimiter == '='; });
    const bool isFormat = statement.Text(0).empty() && statement.EndOf(0) == '(';
    if (!isFormat && !hasSign && statement.OpenList() == nullptr)
        return "\"=\" and the format in brackets are missing";
    const std::string list = statement.WrongInList();
    if (!list.empty())
        return list;
    if (hasSign && !statement.Refused().text.empty())
        return "\"(\" must open the format";
    return "the format in brackets is missing";
}

} // namespace

std::string WhatIsWrong(const std::string& line, Section section, int column)
{
    const RefusedStatement statement(line, section, column);
    if (statement.Words().empty())
        return "the statement is incomplete";
    switch (section)
    {
    case Section::Head: return WrongInHead(statement);
    case Section::Layout: return WrongInLayout(statement);
    case Section::Values: return WrongInValues(statement);
    case Section::Dependencies: return WrongInDependencies(statement);
    case Section::Evaluation: return WrongInEvaluation(statement);
    case Section::Input: return WrongInInput(statement);
    default: return WrongInOutput(statement);
    }
}

std::string FormsOf(Section section)
{
    switch (section)
    {
    case Section::Head: return "write \"$VERSION 1\"";
    case Section::Layout: return "write TYPE LEFT, TOP, WIDTH, HEIGHT, \"TEXT\", .NAME, or OptionGroup .NAME";
    case Section::Values: return "write NAME = VALUE, or NAME: KEYWORD = VALUE";
    case Section::Dependencies: return "write NAME/STATE = CONTROL(VALUE, VALUE), CONTROL";
    case Section::Evaluation:
        return "write NAME = VALUE: MESSAGE, or NAME(VALUE, VALUE) = CONTROL(VALUE, VALUE): MESSAGE";
    case Section::Input:
        return "write NAME: (\"SEPARATOR\", NEXT = CONTROL, or NAME: CONTROL(VALUE) = NEXT, OTHER, or NAME: x = NEXT";
    default: return "write (\"FORMAT\", ITEM, ITEM), with conditions CONTROL(VALUE), CONTROL(VALUE) = before it";
    }
}

std::vector<LineToken> TokensOf(const std::string& line, Section section)
{
    ClytTokenList tokens;
    static_cast<void>(lytTokenize(line.c_str(), DelimitersOf(section), tokens));
    std::vector<LineToken> words;
    for (POSITION place = tokens.GetHeadPosition(); place != nullptr;)
    {
        const ClytToken& token = tokens.GetNext(place);
        words.push_back({token.GetText().GetString(), token.GetColumn(), token.GetDelimiter()});
    }
    return words;
}

} // namespace lytdlg
