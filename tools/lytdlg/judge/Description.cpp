#include "lytdlg/judge/Description.h"

#include "commandline/CommandLine.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/SectionReader.h"
#include "lytdlg/judge/StatementText.h"

#include <algorithm>
#include <cctype>

namespace lytdlg
{

namespace
{

ClytControlStatement RefusedControl(const DescriptionText& text, int line)
{
    ClytControlStatement statement;
    statement.span.line = line;
    for (const LineToken& word : TokensOf(text.Line(line).text, Section::Layout))
    {
        if (word.text.starts_with('.') && word.text.size() > 1)
            statement.name = word.text.substr(1).c_str();
    }
    return statement;
}

bool IsWholeWord(const std::string& line, size_t place, size_t size)
{
    const auto isLetter = [&](size_t index)
    { return index < line.size() && std::isalnum(static_cast<unsigned char>(line[index])) != 0; };
    return !(place > 0 && isLetter(place - 1) && isLetter(place)) &&
           !(isLetter(place + size) && isLetter(place + size - 1));
}

// Where a word is, if need be as a part of another one; npos when it is not there.
size_t PlaceInLine(const std::string& line, const std::string& word, size_t from)
{
    const size_t first = word.empty() ? std::string::npos : line.find(word, from);
    for (size_t place = first; place != std::string::npos; place = line.find(word, place + 1))
    {
        if (IsWholeWord(line, place, word.size()))
            return place;
    }
    return first;
}

// A line that was meant to begin the dialog.
bool IsDialogLine(const DescriptionText& text, int line)
{
    const std::vector<LineToken> words = TokensOf(text.Line(line).text, Section::Layout);
    return !words.empty() && (commandline::IsClose(words[0].text, "Begin") ||
                              (words.size() > 1 && commandline::IsClose(words[1].text, "Dialog")));
}

// Keeps the statements as they are read.
class DescriptionReading : public ClytDescriptionVisitor
{
public:
    explicit DescriptionReading(Description& target) : m_target(target), m_file(target.text, target.mistakes) {}
    void Read() { lytReadAll(m_file, *this); }

    void LinesBegin(ClytLineKind kind)
    {
        m_file.BeginSectionBefore(lytFormOf(kind).end);
        m_mistakes = m_target.mistakes.size();
        if (kind == ClytLineKind::Output && HasLines(Section::Output))
            AddGroup(lytParentName, m_target.PlaceOf(m_target.text.LinesWithMarksOf(Section::Output).front()->number));
    }

    void LayoutHeader(const CString& /*version*/, const CStringList& words) { m_target.layoutWords = Strings(words); }

    void DialogHeader(bool isRead, int width, int height, const CString& title, const CString& /*lastText*/)
    {
        m_target.hasDialogHeader = isRead;
        m_target.width = width;
        m_target.height = height;
        m_target.title = title.GetString();
        m_target.dialogHeader = m_file.GetLinePlace();
        // When the section ends before it, the line that follows counts.
        const std::vector<const SourceLine*> lines = m_target.text.LinesWithMarksOf(Section::Layout);
        const int below = lines.empty() ? 1 : lines.back()->number + 1;
        m_target.dialogHeader.line = std::min(m_target.dialogHeader.line, below);
        // The line that should have been the dialog's is a control.
        const bool isMissing = IsRefused() && m_target.mistakes.back().number == lytError("DialogMissing");
        if (isMissing && !IsDialogLine(m_target.text, m_target.dialogHeader.line))
            m_file.TakeLineAgain();
    }

    void Control(const ClytControlStatement& statement)
    {
        if (IsRefused())
            m_target.controls.push_back(RefusedControl(m_target.text, m_target.mistakes.back().place.line));
        else if (!statement.type.IsEmpty())
            m_target.controls.push_back(statement);
    }

    void Value(const CString& name, const CString& keyword, const CStringList& values)
    {
        if (!values.IsEmpty())
            m_target.values.push_back({name.GetString(), keyword.GetString(), Strings(values), m_file.GetLinePlace()});
    }

    void Dependency(std::unique_ptr<ClytControlDep>& rule)
    {
        std::unique_ptr<ClytControlDep> read = std::move(rule);
        if (!IsRefused() && !read->controlName.IsEmpty())
            m_target.rules.AddTail(std::move(read));
    }

    void EvaluationHeader(const CStringList& words) { m_target.evaluationWords = Strings(words); }

    void Evaluation(const ClytControlEval& read)
    {
        if (read.ownValues.GetValues().IsEmpty())
            return;
        EvaluationStatement& statement = m_target.evaluations.emplace_back();
        statement.own.CopyFrom(read.ownValues);
        statement.other.CopyFrom(read.otherValues);
        statement.messageKey = read.messageKey.GetString();
        statement.span = m_file.GetLinePlace();
    }

    void InputPart(const CString& name, std::unique_ptr<ClytInputPart>& part)
    {
        const ClytSpan header = part->span;
        if (HasLines(Section::Input))
            m_target.inputs.push_back({name.GetString(), header, std::move(part)});
    }

    void Output(const CString& group, std::unique_ptr<ClytDialogOutput>& rule)
    {
        if (IsRefused())
            rule.reset();
        else if (!group.IsEmpty())
            AddGroup(group.GetString(), m_file.GetLinePlace());
        else if (!rule->format.IsEmpty())
            m_target.outputs.back().rules.AddTail(std::move(rule));
    }

private:
    bool HasLines(Section section) const { return !m_target.text.LinesWithMarksOf(section).empty(); }
    // Whether the reader refuses the statement that was read last.
    bool IsRefused() { return std::exchange(m_mistakes, m_target.mistakes.size()) != m_target.mistakes.size(); }

    void AddGroup(const std::string& name, const ClytSpan& header)
    {
        OutputGroup& group = m_target.outputs.emplace_back();
        group.name = name;
        group.header = header;
    }

    Description& m_target;
    SectionReader m_file;
    size_t m_mistakes = 0; // known when the present statement began
};

} // namespace

Description::Description(std::string filePath, const std::string& bytes, const std::vector<std::string>& defines)
    : path(std::move(filePath)), text(bytes, defines)
{
    DescriptionReading(*this).Read();
    m_index = std::make_unique<DescriptionIndex>(*this);
}

Description::~Description() = default;

const ClytControlStatement* Description::FindControl(const std::string& name) const
{
    return m_index->FactsOf(name).control;
}

bool Description::IsRefused(int line) const
{
    return m_index->IsRefused(line);
}

ClytSpan Description::PlaceOf(int line, const std::string& word, int fromColumn) const
{
    const size_t column = PlaceInLine(text.Line(line).text, word, static_cast<size_t>(fromColumn));
    if (column == std::string::npos)
        return PlaceOf(line);
    return {line, static_cast<int>(column), static_cast<int>(word.size())};
}

ClytSpan Description::PlaceOf(int line) const
{
    const std::string& content = text.Line(line).text;
    const size_t start = content.find_first_not_of(" \t");
    if (start == std::string::npos)
        return {line, 0, 0};
    const size_t end = content.find_last_not_of(" \t");
    return {line, static_cast<int>(start), static_cast<int>(end + 1 - start)};
}

bool Description::IsQuoted(const ClytSpan& place) const
{
    const std::string& line = text.Line(place.line).text;
    const auto before = static_cast<size_t>(place.column) - 1;
    return place.column > 0 && before < line.size() && line[before] == '"';
}

} // namespace lytdlg
