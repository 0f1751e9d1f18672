#include "lytdlg/judge/Families.h"

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
            judged.findings.Add("word-dropped",
                                {line.number, static_cast<int>(rest), static_cast<int>(last + 1 - rest)},
                                "what follows the closing quote is passed over", wayOut);
        }
        begin = next < text.size() && text[next] != ';' ? text.find_first_not_of(" \t", next + 1) : std::string::npos;
    }
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
            judged.findings.Add("word-dropped", {line.number, word.column, static_cast<int>(word.text.size())},
                                "what follows the closing bracket is passed over", wayOut);
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
