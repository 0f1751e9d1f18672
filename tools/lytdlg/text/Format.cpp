#include "lytdlg/text/DescriptionLines.h"

#include "dlgfile/ClytDialogFile.h"
#include "lytdlg/text/Statement.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr size_t indentationWidth = 4;
// Where comments after statements are. Lines one below the other have theirs in one column, further right when a statement
// needs it, except that of a very long one, which is just after its statement.
constexpr size_t leastCommentColumn = 48;
constexpr size_t widestAligned = 76;
constexpr size_t commentGap = 2;

// A line and what is to become of it.
struct Line
{
    const DescriptionLine* source = nullptr;
    bool isKept = true;
    bool isBlank = false;
    bool isHeading = false;
    std::string code; // indented; empty for a comment alone
    std::string comment;
    size_t oldColumn = 0; // of the comment
    size_t newColumn = 0;

    bool IsComment() const { return !isKept && code.empty() && !comment.empty(); }
    bool HasTrailingComment() const { return !isKept && !code.empty() && !comment.empty(); }
    std::string Text() const
    {
        return comment.empty() ? code : code + std::string(newColumn - code.size(), ' ') + comment;
    }
};

ClytLineKind FirstOf(const LineKinds& kinds)
{
    size_t kind = 0;
    while (!kinds[kind])
        ++kind;
    return static_cast<ClytLineKind>(kind);
}

// A line with words.
void JudgeStatement(Line& line, const Statement& statement, ClytLineKind kind)
{
    const std::optional<std::string> code = LaidOut(statement, kind);
    line.isHeading = IsHeading(statement, kind);
    line.isKept = line.source->isRefused || !code;
    line.code = code.value_or("");
}

bool IsControlCharacter(char ch)
{
    return (ch >= 0 && ch < ' ' && ch != '\t') || ch == 0x7F;
}

// It arrives in one piece, and its only control characters are tabs.
bool IsPlain(const std::string& text)
{
    return text.size() < ClytDialogFile::lineSize && std::ranges::none_of(text, IsControlCharacter);
}

// What is above the layout line is free text, headings apart.
Line Judged(const DescriptionLine& source)
{
    Line line;
    line.source = &source;
    if (source.kinds.none() || !IsPlain(source.text))
        return line;
    const ClytLineKind kind = FirstOf(source.kinds);
    const std::optional<Statement> statement = CutStatement(source.text, kind);
    if (!statement)
        return line;
    line.comment = statement->comment;
    line.oldColumn = statement->commentColumn;
    line.isBlank = statement->words.empty() && line.comment.empty();
    if (statement->words.empty())
        line.isKept = kind == ClytLineKind::Header;
    else
        JudgeStatement(line, *statement, kind);
    return line;
}

// Lines whose comments belong together: statements with comments, and comments alone that continue below them.
class Run
{
public:
    Run(std::vector<Line>& lines, size_t first) : m_first(lines.begin() + static_cast<std::ptrdiff_t>(first))
    {
        m_end = m_first + 1;
        while (m_end != lines.end() && (m_end->HasTrailingComment() || GoesOn(m_end[-1], *m_end)))
            ++m_end;
    }

    size_t Size() const { return static_cast<size_t>(m_end - m_first); }

    void Align() const
    {
        size_t column = leastCommentColumn;
        for (auto line = m_first; line != m_end; ++line)
        {
            if (line->code.size() <= widestAligned)
                column = std::max(column, line->code.size() + commentGap);
        }
        for (auto line = m_first; line != m_end; ++line)
            line->newColumn = line->IsComment() ? line[-1].newColumn : std::max(column, line->code.size() + commentGap);
    }

private:
    static bool GoesOn(const Line& line, const Line& next)
    {
        return next.IsComment() && next.oldColumn == line.oldColumn;
    }

    std::vector<Line>::iterator m_first;
    std::vector<Line>::iterator m_end;
};

bool IsBeforeHeading(const std::vector<Line>& lines, size_t index)
{
    const auto next = std::find_if(lines.begin() + static_cast<std::ptrdiff_t>(index), lines.end(),
                                   [](const Line& line) { return !line.IsComment() && !line.isBlank; });
    return next != lines.end() && next->isHeading;
}

void PlaceComments(std::vector<Line>& lines)
{
    for (size_t i = 0; i < lines.size();)
    {
        if (lines[i].HasTrailingComment())
        {
            const Run run(lines, i);
            run.Align();
            i += run.Size();
            continue;
        }
        // A comment at the margin stays there when it is about the section to come.
        const bool isAtMargin = lines[i].oldColumn == 0 && IsBeforeHeading(lines, i);
        lines[i].newColumn = isAtMargin ? 0 : indentationWidth;
        ++i;
    }
}

bool IsReadAlike(const DescriptionLine& source, const std::string& text)
{
    for (size_t kind = 0; kind < source.kinds.size(); ++kind)
    {
        if (source.kinds[kind] && !ReadsAlike(source.text, text, static_cast<ClytLineKind>(kind)))
            return false;
    }
    // These would be marks of a define, and no line at all.
    const bool isMark = text.starts_with('<') || text.starts_with('>');
    const bool isNone = text.empty() && source.end.empty();
    return !isMark && !isNone && text.size() < ClytDialogFile::lineSize;
}

std::string Chosen(const Line& line)
{
    if (line.isKept)
        return line.source->text;
    std::string text = line.Text();
    return IsReadAlike(*line.source, text) ? text : line.source->text;
}

} // namespace

std::string FormattedDescription(const std::filesystem::path& fileName, const std::string& content)
{
    const DescriptionLines split = ReadDescriptionLines(fileName, content);
    std::vector<Line> lines;
    std::ranges::transform(split.lines, std::back_inserter(lines), Judged);
    PlaceComments(lines);
    std::string formatted;
    for (const Line& line : lines)
        formatted += Chosen(line) + line.source->end;
    return formatted + split.unread;
}

} // namespace lytdlg
