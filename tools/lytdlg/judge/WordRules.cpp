#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/StatementText.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr const char* wayOut = "write a comma before it, or delete it";

// Where a word ends, its closing quote included. Without quotes it ends where it begins, and with a quote that is not
// closed at the end of the line.
size_t EndOfQuotes(const std::string& text, size_t begin)
{
    if (text[begin] != '"')
        return begin;
    size_t end = text.find('"', begin + 1);
    while (end != std::string::npos && text[end - 1] == '\\')
        end = text.find('"', end + 1);
    return end != std::string::npos ? end + 1 : text.size();
}

// The way out for a blank that a text in quotes loses; `before` is the line up to the quote.
std::string WayOutOfBlank(Section section, std::string before, const std::string& read, bool isAtEnd)
{
    before.erase(before.find_last_not_of(" \t") + 1);
    const bool isOperand = before.ends_with(",") && before.find(lytTextOf(ClytFillAction::Concat)) != std::string::npos;
    if (section != Section::Input || before.ends_with("=") || isOperand)
        return "leave it out, or put another sign there";
    if (read.empty())
        return "a text cannot be cut at blanks: choose another sign";
    return "write " + InQuotes(read) +
           (isAtEnd ? ", and let a statement (1, NEXT) cut off the blank after it"
                    : "; the blank then ends the piece before it");
}

void JudgeBlanks(const Case& judged, const SourceLine& line, size_t begin, size_t end)
{
    const std::string text = line.text.substr(begin, end - begin);
    const size_t first = std::min(text.find_first_not_of(" \t"), text.size());
    const size_t last = text.find_last_not_of(" \t") + 1;
    const std::string read = first < last ? text.substr(first, last - first) : "";
    if (line.section == Section::Layout || read == text)
        return;
    const bool isAtEnd = !read.empty() && last < text.size();
    const size_t place = isAtEnd ? begin + last : begin;
    judged.findings.Add("blank-dropped",
                        {line.number, static_cast<int>(place), static_cast<int>(isAtEnd ? text.size() - last : first)},
                        std::string("the blank at the ") + (isAtEnd ? "end" : "beginning") +
                            " of a text in quotes is dropped, which is read as " + InQuotes(read),
                        WayOutOfBlank(line.section, line.text.substr(0, begin - 1), read, isAtEnd));
}

void JudgeQuotes(const Case& judged, const SourceLine& line)
{
    const std::string& text = line.text;
    const DelimiterSet delimiters = DelimitersOf(line.section);
    size_t begin = text.find_first_not_of(" \t");
    while (begin != std::string::npos && text[begin] != ';')
    {
        const size_t end = EndOfQuotes(text, begin);
        const auto sign = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(end), text.end(),
                                       [&](char ch) { return delimiters.Contains(ch); });
        const size_t next = static_cast<size_t>(sign - text.begin());
        const size_t rest = text.find_first_not_of(" \t", end);
        if (end != begin && rest < next && text[rest] != ';')
        {
            const size_t last = text.find_last_not_of(" \t", next - 1);
            judged.findings
                .Add("word-dropped", {line.number, static_cast<int>(rest), static_cast<int>(last + 1 - rest)},
                     "what follows the closing quote is passed over", wayOut)
                .FixPerhaps({line.number, static_cast<int>(end), static_cast<int>(rest - end)}, ", ");
        }
        if (end > begin + 1)
            JudgeBlanks(judged, line, begin + 1, end - 1);
        begin = next < text.size() && text[next] != ';' ? text.find_first_not_of(" \t", next + 1) : std::string::npos;
    }
}

// From the closing bracket before a word to the word, or to its quote.
ClytSpan GapBefore(const std::string& text, int column, int line)
{
    const size_t bracket = text.rfind(')', static_cast<size_t>(column));
    const size_t begin = std::min(text.find_first_not_of(" \t", bracket + 1), text.size());
    return {line, static_cast<int>(bracket + 1), static_cast<int>(begin - bracket - 1)};
}

// In the other sections a closing bracket ends the statement, or a word may follow it.
void JudgeBrackets(const Case& judged, const SourceLine& line)
{
    if (line.section != Section::Dependencies && line.section != Section::Evaluation && line.section != Section::Output)
        return;
    const std::vector<LineToken> words = TokensOf(line.text, line.section);
    for (size_t index = 1; index < words.size(); ++index)
    {
        const LineToken& word = words[index];
        if (words[index - 1].delimiter == ')' && !word.text.empty())
            judged.findings
                .Add("word-dropped", {line.number, word.column, static_cast<int>(word.text.size())},
                     "what follows the closing bracket is passed over", wayOut)
                .FixPerhaps(GapBefore(line.text, word.column, line.number), ", ");
    }
}

// The way on without a condition, which has one target.
void JudgeJump(const Case& judged, const SourceLine& line)
{
    if (line.section != Section::Input)
        return;
    const std::vector<LineToken> words = TokensOf(line.text, line.section);
    const bool isJump = words.size() > 3 && words[0].delimiter == ':' && words[1].delimiter == '=';
    if (isJump)
        judged.findings.Add("word-dropped", {line.number, words[3].column, static_cast<int>(words[3].text.size())},
                            "without values in brackets this is no condition: the run always continues at \"" +
                                words[2].text + "\", and what follows is passed over",
                            "write CONTROL(VALUE) = NAME, OTHER, or delete it");
}

} // namespace

void ApplyWordRules(const Case& judged)
{
    for (const SourceLine& line : judged.description.text.Lines())
    {
        const bool isStatement =
            line.isRead && !line.isHeader && line.section != Section::Head && line.section != Section::End;
        if (!isStatement || judged.description.IsRefused(line.number))
            continue;
        JudgeQuotes(judged, line);
        JudgeBrackets(judged, line);
        JudgeJump(judged, line);
    }
}

} // namespace lytdlg
