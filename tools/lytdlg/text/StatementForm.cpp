// The forms of statements:
//
//     $HEADER word
//     Begin Dialog Box 444, 196, "Title", .Main
//         TextBox   190,  24, 226,  19, "Text", .Name       numbers are right-aligned in columns, where they fit
//         name: ("separator", target = fill, fill(WORD)
//
// Elsewhere a word keeps the quotes that it has: whether a value reads better with them is its author's choice.
#include "lytdlg/text/Statement.h"

#include "base/Words.h"
#include "model/ClytWords.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr const char* indentation = "    ";
// Where the first number of a control ends, counted from its type word, and how much further each other one does.
constexpr size_t firstNumberEnd = 13;
constexpr size_t numberWidth = 5;

std::string WordInQuotes(const Word& word)
{
    return '"' + word.text + '"';
}

std::string AsWritten(const Word& word)
{
    return word.isQuoted ? WordInQuotes(word) : word.text;
}

bool NeedsNoQuotes(char ch)
{
    return (ch >= '0' && ch <= '9') || (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') || ch == '.' || ch == '-' ||
           ch == '_';
}

// A type word, a number or a name.
std::string Unquoted(const Word& word)
{
    return !word.text.empty() && std::ranges::all_of(word.text, NeedsNoQuotes) ? word.text : AsWritten(word);
}

bool IsName(const Word& word)
{
    return word.text.starts_with('.');
}

bool IsMissing(const Word& word)
{
    return word.text.empty() && !word.isQuoted;
}

std::string WithNumbers(const std::vector<Word>& words)
{
    std::string code = Unquoted(words[0]);
    for (size_t i = 1; i <= 4; ++i)
    {
        const std::string number = Unquoted(words[i]);
        const size_t end = firstNumberEnd + (i - 1) * numberWidth;
        const size_t start = end > number.size() ? end - number.size() : 0;
        code.append(std::max(start, code.size() + 1) - code.size(), ' ');
        code += number;
        code += i + 1 < words.size() ? "," : "";
    }
    return code;
}

// What a reader ignores, and what is in the place of another word, has no form.
std::optional<std::string> ControlForm(const std::vector<Word>& words)
{
    if (words.size() == 2 && IsName(words[1]))
        return Unquoted(words[0]) + " " + Unquoted(words[1]);
    if (words.size() < 5 || words.size() > 7)
        return std::nullopt;
    const std::string numbers = WithNumbers(words);
    if (words.size() == 5)
        return numbers;
    if (words.size() == 6)
        return numbers + " " + (IsName(words[5]) ? Unquoted(words[5]) : WordInQuotes(words[5]));
    if (IsName(words[5]) || !IsName(words[6]))
        return std::nullopt;
    return numbers + " " + WordInQuotes(words[5]) + ", " + Unquoted(words[6]);
}

std::optional<std::string> HeadForm(const std::vector<Word>& words)
{
    const bool isHeading =
        words[0].text == lytWordOf(ClytSection::Head) || words[0].text == lytWordOf(ClytSection::Layout);
    if (!isHeading || words.size() > 2)
        return std::nullopt;
    return words[0].text + (words.size() == 2 ? " " + Unquoted(words[1]) : "");
}

std::optional<std::string> DialogForm(const std::vector<Word>& words)
{
    if (words.size() != 7)
        return std::nullopt;
    std::string code;
    for (size_t i = 0; i < words.size(); ++i)
        code += (i == 5 ? WordInQuotes(words[i]) : Unquoted(words[i])) + (i < 3 ? " " : i < 6 ? ", " : "");
    return code;
}

std::optional<std::string> LayoutForm(const Statement& statement, ClytLineKind kind)
{
    const std::vector<Word>& words = statement.words;
    if (std::ranges::any_of(words, IsMissing))
        return std::nullopt;
    if (kind == ClytLineKind::Header)
        return HeadForm(words);
    if (kind == ClytLineKind::Dialog)
        return DialogForm(words);
    if (!IsHeading(statement, kind))
        return ControlForm(words);
    const bool isEnd = words[0].text == "End";
    if (words.size() != (isEnd ? 2U : 1U))
        return std::nullopt;
    return words[0].text + (isEnd ? " " + Unquoted(words[1]) : "");
}

// The separators of a scan, in pairs with the statements that continue.
std::vector<size_t> ScanSeparators(const std::vector<Word>& words)
{
    std::vector<size_t> separators;
    if (words.size() < 2 || words[0].delimiter != ':' || !words[1].IsBare('('))
        return separators;
    for (size_t i = 2; i + 1 < words.size() && words[i].delimiter != ')'; i += 2)
    {
        const CString text(words[i].text.c_str());
        if (lytNumberOf(text) == 0 && text != "Rest")
            separators.push_back(i);
        if (words[i + 1].delimiter == '=' || words[i + 1].delimiter == ')')
            break;
    }
    return separators;
}

// The format of an output rule, and what is between the values of a list.
std::vector<size_t> OutputTexts(const std::vector<Word>& words)
{
    std::vector<size_t> texts;
    size_t format = 0;
    while (format < words.size() && !(words[format].IsBare('(') && (format == 0 || words[format - 1].delimiter == '=')))
        ++format;
    if (++format >= words.size())
        return texts;
    texts.push_back(format);
    bool isInBrackets = false;
    for (size_t i = format + 1; i < words.size(); ++i)
    {
        if (isInBrackets && !words[i].text.empty())
            texts.push_back(i);
        isInBrackets = words[i].delimiter == '(' || (isInBrackets && words[i].delimiter != ')');
    }
    return texts;
}

std::vector<size_t> QuotedTexts(const std::vector<Word>& words, ClytLineKind kind)
{
    switch (kind)
    {
    case ClytLineKind::FirstInput:
    case ClytLineKind::Input: return ScanSeparators(words);
    case ClytLineKind::Output: return OutputTexts(words);
    default: return {};
    }
}

// Null for a delimiter that no statement is laid out with.
const char* SpacedDelimiter(char delimiter)
{
    switch (delimiter)
    {
    case '=': return " = ";
    case ',': return ", ";
    case ':': return ": ";
    case '(': return "(";
    case ')': return ")";
    case '/': return "/";
    case ';':
    case '\n': return "";
    default: return nullptr;
    }
}

std::optional<std::string> RuleForm(const std::vector<Word>& words, ClytLineKind kind)
{
    const std::vector<size_t> quoted = QuotedTexts(words, kind);
    std::string code;
    for (size_t i = 0; i < words.size(); ++i)
    {
        const Word& word = words[i];
        const char* delimiter = SpacedDelimiter(word.delimiter);
        // Where a tab or a `;` does not separate, it is a slip that its author is to see as it was.
        if (delimiter == nullptr || (!word.isQuoted && word.text.find_first_of("\t;") != std::string::npos))
            return std::nullopt;
        code += std::ranges::binary_search(quoted, i) ? WordInQuotes(word) : AsWritten(word);
        code += delimiter;
    }
    code.erase(code.find_last_not_of(' ') + 1);
    return code;
}

} // namespace

bool IsHeading(const Statement& statement, ClytLineKind kind)
{
    const std::string& word = statement.words.front().text;
    return kind <= ClytLineKind::Dialog || (kind == ClytLineKind::Controls && word == "End") ||
           std::ranges::find(lytSectionWords, word) != std::end(lytSectionWords);
}

std::optional<std::string> LaidOut(const Statement& statement, ClytLineKind kind)
{
    const std::optional<std::string> code =
        kind <= ClytLineKind::Controls ? LayoutForm(statement, kind) : RuleForm(statement.words, kind);
    if (!code || IsHeading(statement, kind))
        return code;
    return indentation + *code;
}

} // namespace lytdlg
