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

// The words of a header after its first.
std::vector<std::string> HeaderWords(ClytDialogFile& file)
{
    CStringList words;
    file.TakeTokens(words);
    std::vector<std::string> strings = Strings(words);
    if (!strings.empty())
        strings.erase(strings.begin());
    return strings;
}

// The lines of some sections, in their order in the file, without the header that opens the last section's first part:
// its word comes from the reader.
std::vector<const SourceLine*> Body(const DescriptionText& text, Section section)
{
    std::vector<const SourceLine*> lines = text.LinesWithMarksOf(section);
    if (!lines.empty() && lines.front()->isHeader)
        lines.erase(lines.begin());
    return lines;
}

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

} // namespace

Description::Description(std::string filePath, const std::string& bytes, const std::vector<std::string>& defines)
    : path(std::move(filePath)), text(bytes, defines)
{
    ReadLayout();
    ReadValues();
    ReadDependencies();
    ReadEvaluations();
    ReadInputs();
    ReadOutputs();
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

void Description::ReadLayout()
{
    const std::vector<const SourceLine*> layout = text.LinesWithMarksOf(Section::Layout);
    const bool hasHeader = text.HeaderOf(Section::Layout) != nullptr;
    std::vector<const SourceLine*> lines = hasHeader ? text.LinesWithMarksOf(Section::Head) : layout;
    if (hasHeader)
        lines.insert(lines.end(), layout.begin(), layout.end());
    SectionReader file(text, lines, WordOf(Section::Values), mistakes);

    CString version;
    if (hasHeader && file.ReadVersionHeader(version) == 0)
        return;
    layoutWords = HeaderWords(file);
    CString caption;
    CString lastText;
    const size_t mistakesBefore = mistakes.size();
    hasDialogHeader = file.ReadDialogHeader(width, height, caption, lastText) != 0;
    title = caption.GetString();
    dialogHeader = file.GetLinePlace();
    // When the section ends before it, the line that follows counts.
    dialogHeader.line = std::min(dialogHeader.line, lines.empty() ? 1 : lines.back()->number + 1);
    if (mistakes.size() == mistakesBefore || mistakes.back().number != lytError("DialogMissing") ||
        IsDialogLine(text, dialogHeader.line))
    {
        ReadControls(file);
        return;
    }
    // The line that should have been the dialog's is a control.
    const auto first = std::ranges::find(lines, dialogHeader.line, &SourceLine::number);
    SectionReader rest(text, {first, lines.end()}, WordOf(Section::Values), mistakes);
    ReadControls(rest);
}

void Description::ReadControls(ClytDialogFile& file)
{
    ClytControlStatement statement;
    size_t mistakesBefore = mistakes.size();
    while (file.ReadControlStatement(statement) != 0)
    {
        const bool isRefused = mistakes.size() != mistakesBefore;
        mistakesBefore = mistakes.size();
        if (isRefused)
            statement = RefusedControl(text, mistakes.back().place.line);
        if (isRefused || !statement.type.IsEmpty())
            controls.push_back(statement);
    }
}

void Description::ReadValues()
{
    SectionReader file(text, Body(text, Section::Values), WordOf(Section::Dependencies), mistakes);
    CString name;
    CString keyword;
    CStringList list;
    while (file.ReadValueStatement(name, keyword, list) != 0)
    {
        if (!list.IsEmpty())
            values.push_back({name.GetString(), keyword.GetString(), Strings(list), file.GetLinePlace()});
    }
}

void Description::ReadDependencies()
{
    // The last line is the header of the next section: its words come from the reader.
    std::vector<const SourceLine*> lines = Body(text, Section::Dependencies);
    if (const SourceLine* header = text.HeaderOf(Section::Evaluation))
        lines.push_back(header);
    SectionReader file(text, lines, WordOf(Section::Evaluation), mistakes);
    auto rule = std::make_unique<ClytControlDep>();
    size_t mistakesBefore = mistakes.size();
    while (file.ReadDependencyStatement(*rule) == 1)
    {
        const bool isRead = !rule->controlName.IsEmpty() && mistakes.size() == mistakesBefore;
        mistakesBefore = mistakes.size();
        if (isRead)
        {
            rules.AddTail(std::move(rule));
        }
        rule = std::make_unique<ClytControlDep>();
    }
    evaluationWords = HeaderWords(file);
}

void Description::ReadEvaluations()
{
    SectionReader file(text, Body(text, Section::Evaluation), WordOf(Section::Input), mistakes);
    while (true)
    {
        EvaluationStatement& statement = evaluations.emplace_back();
        CString key;
        const int goesOn = file.ReadEvaluationStatement(statement.own, statement.other, key);
        statement.messageKey = key.GetString();
        statement.span = file.GetLinePlace();
        if (goesOn == 0 || statement.own.GetValues().IsEmpty())
            evaluations.pop_back();
        if (goesOn == 0)
            return;
    }
}

void Description::ReadInputs()
{
    // A reader of parts finds the header of the first in its token list, where the section before has left it.
    std::vector<const SourceLine*> lines = text.LinesWithMarksOf(Section::Input);
    if (lines.empty())
        return;
    SourceLine header;
    header.text = std::string(WordOf(Section::Input)) + ", parent";
    header.number = lines.front()->number - 1;
    if (!lines.front()->isHeader)
        lines.insert(lines.begin(), &header);
    SectionReader file(text, lines, WordOf(Section::Output), mistakes);
    ClytCtrlValList own;
    ClytCtrlValList other;
    CString word;
    while (file.ReadEvaluationStatement(own, other, word) != 0)
        continue;
    ClytSpan place = file.GetLinePlace();
    while (file.ReadInputHeader(word) != 0)
    {
        InputPart& part = inputs.emplace_back();
        part.name = word.IsEmpty() ? "parent" : word.GetString();
        part.header = place;
        file.ReadInputPart(part.part);
        place = file.GetLinePlace();
    }
}

void Description::ReadOutputs()
{
    std::vector<const SourceLine*> lines = text.LinesWithMarksOf(Section::Output);
    if (lines.empty())
        return;
    OutputGroup* group = &outputs.emplace_back();
    group->name = "parent";
    group->header = PlaceOf(lines.front()->number);
    if (lines.front()->isHeader)
        lines.erase(lines.begin());
    SectionReader file(text, lines, WordOf(Section::End), mistakes);
    CString nextName;
    auto rule = std::make_unique<ClytDialogOutput>();
    size_t mistakesBefore = mistakes.size();
    while (file.ReadOutputStatement(nextName, *rule) != 0)
    {
        if (mistakes.size() != mistakesBefore)
        {
            mistakesBefore = mistakes.size();
            rule = std::make_unique<ClytDialogOutput>();
        }
        else if (!nextName.IsEmpty())
        {
            group = &outputs.emplace_back();
            group->name = std::exchange(nextName, CString()).GetString();
            group->header = file.GetLinePlace();
        }
        else if (!rule->format.IsEmpty())
        {
            group->rules.AddTail(std::move(rule));
            rule = std::make_unique<ClytDialogOutput>();
        }
    }
}

} // namespace lytdlg
