#include "lytdlg/judge/Families.h"

#include "dlgfile/ClytDialogFile.h"
#include "lytdlg/judge/StatementText.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

bool IsInStatements(const SourceLine& line)
{
    return line.isRead && line.section != Section::Head && line.section != Section::End;
}

Finding& AddAt(const Case& judged, RuleName rule, int line, size_t column, size_t size, std::string message,
               std::string hint)
{
    return judged.findings.Add(rule, {line, static_cast<int>(column), static_cast<int>(size)}, std::move(message),
                               std::move(hint));
}

// Between two words a tab is a comma; before a sign it makes one more word, which is empty.
const char* TabInstead(const std::string& text, size_t after, const DelimiterSet& delimiters, bool separates)
{
    const bool isBeforeWord = after != std::string::npos && !delimiters.Contains(text[after]);
    return separates && isBeforeWord ? ", " : " ";
}

// A tab harms that ends a word, unless nothing follows it. Blanks and tabs are alike in the layout.
void JudgeTabs(const Case& judged, const SourceLine& line)
{
    if (!IsInStatements(line) || line.section == Section::Layout || line.text.find('\t') == std::string::npos)
        return;
    const std::string text = line.text.substr(0, EndOfStatement(line));
    const DelimiterSet delimiters = DelimitersOf(line.section);
    bool isInQuotes = false;
    for (size_t place = 0; place < text.size(); ++place)
    {
        isInQuotes = isInQuotes != (text[place] == '"' && (place == 0 || text[place - 1] != '\\'));
        if (text[place] != '\t' || isInQuotes)
            continue;
        const size_t before = text.find_last_not_of(" \t", place);
        const size_t after = text.find_first_not_of(" \t", place);
        const bool endsWord = before != std::string::npos && !delimiters.Contains(text[before]);
        const bool isHarmless = after == std::string::npos        ? line.section != Section::Dependencies
                                : line.section == Section::Output ? delimiters.Contains(text[after])
                                                                  : false;
        if (!endsWord || isHarmless)
            continue;
        const bool separates = line.section != Section::Output;
        AddAt(judged, "tab", line.number, place, 1,
              separates ? "this tab ends the word before it, as a comma does" : "this tab does not separate words",
              "write blanks in place of tabs")
            .FixSafely({line.number, static_cast<int>(place), 1}, TabInstead(text, after, delimiters, separates));
        return;
    }
}

void JudgeLength(const Case& judged, const SourceLine& line)
{
    constexpr size_t limit = ClytDialogFile::lineSize;
    if (IsInStatements(line) && line.text.size() > limit)
        AddAt(judged, "line-length", line.number, limit, line.text.size() - limit,
              "what follows character " + std::to_string(limit) + " is read as a separate line",
              "a line may have " + std::to_string(limit) + " characters; shorten it");
}

// Outside quotes it is a letter of the word beside it. Within a word of a value it may be meant.
void JudgeNoBreakSpace(const Case& judged, const SourceLine& line)
{
    constexpr char noBreakSpace = '\xA0';
    const size_t end = IsInStatements(line) ? EndOfStatement(line) : 0;
    bool isInQuotes = false;
    for (size_t place = 0; place < end; ++place)
    {
        const std::string& text = line.text;
        isInQuotes = isInQuotes != (text[place] == '"' && (place == 0 || text[place - 1] != '\\'));
        if (text[place] != noBreakSpace || isInQuotes)
            continue;
        const auto isLetter = [&](size_t at)
        { return at < end && text[at] != ' ' && text[at] != '\t' && !DelimitersOf(line.section).Contains(text[at]); };
        const bool isWithinWord = place > 0 && isLetter(place - 1) && isLetter(place + 1);
        const bool isUtf8 = place > 0 && SequenceLength(text, place - 1) != 0;
        if (isUtf8 || (isWithinWord && line.section != Section::Layout))
            continue;
        AddAt(judged, "no-break-space", line.number, place, 1, "this is a no-break space, and a letter for the library",
              "write a blank in its place")
            .FixSafely({line.number, static_cast<int>(place), 1}, " ");
        return;
    }
}

// A comment may hold what it likes, but for the byte that ends the line.
void JudgeBytes(const Case& judged, const SourceLine& line)
{
    if (!IsInStatements(line))
        return;
    const size_t end = EndOfStatement(line);
    bool isUtf8Told = judged.description.text.HasByteOrderMark();
    for (size_t place = 0; place < end; ++place)
    {
        const size_t size = SequenceLength(line.text, place);
        if (size != 0 && !isUtf8Told)
            AddAt(judged, "utf-8", line.number, place, size,
                  "the library reads this letter as " + std::to_string(size) + " characters", encodeAsAnsi);
        isUtf8Told = isUtf8Told || size != 0;
        if (size == 0 && StandsForNothing(line.text[place]))
        {
            AddAt(judged, "control-byte", line.number, place, 1,
                  "the byte " + HexOf(line.text[place]) + " is not a character",
                  line.text[place] == '\0' ? "delete it: it ends the line" : "delete it")
                .FixPerhaps({line.number, static_cast<int>(place), 1}, "");
            return;
        }
        place += size != 0 ? size - 1 : 0;
    }
}

void JudgeFile(const Case& judged)
{
    const DescriptionText& text = judged.description.text;
    const bool isAtVersion = !text.Lines().empty() && text.Lines().front().isHeader;
    if (text.HasByteOrderMark() && isAtVersion)
    {
        AddAt(judged, "byte-order-mark", 1, 0, 1, "a byte order mark comes before the first word",
              "save the file in code page 1252, or begin it with a comment");
        judged.findings.All().back().number = lytError("VersionMissing");
    }
    else if (text.HasByteOrderMark())
        AddAt(judged, "byte-order-mark-above", 1, 0, 1,
              "the file begins with a byte order mark, and so was saved as UTF-8", encodeAsAnsi);
    if (text.HasTextAfterEndMark())
        judged.findings.Add("end-mark", judged.description.PlaceOf(static_cast<int>(text.Lines().size())),
                            "a Ctrl-Z ends the file here, and text follows it",
                            "delete the byte 1A, and what follows $END");
}

void JudgeAfterEnd(const Case& judged)
{
    for (const SourceLine* line : judged.description.text.LinesOf(Section::End))
    {
        const size_t start = line->text.find_first_not_of(" \t");
        if (line->isHeader || start == std::string::npos || line->text[start] == ';')
            continue;
        judged.findings
            .Add("after-end", judged.description.PlaceOf(line->number), "nothing after $END is read",
                 "move it above $END, or make a comment of it")
            .FixSafely({line->number, static_cast<int>(start), 0}, "; ");
        return;
    }
}

} // namespace

void ApplyLineRules(const Case& judged)
{
    for (const SourceLine& line : judged.description.text.Lines())
    {
        JudgeTabs(judged, line);
        JudgeLength(judged, line);
        JudgeBytes(judged, line);
        JudgeNoBreakSpace(judged, line);
    }
    JudgeFile(judged);
    JudgeAfterEnd(judged);
}

} // namespace lytdlg
