#include "lytdlg/judge/DescriptionText.h"

#include "commandline/CommandLine.h"
#include "dlgfile/ClytDialogFile.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <optional>
#include <unordered_set>

namespace lytdlg
{

namespace
{

std::string Upper(std::string text)
{
    std::ranges::transform(text, text.begin(), [](unsigned char ch) { return static_cast<char>(std::toupper(ch)); });
    return text;
}

// The first word of a line, as the reader of a section takes it.
struct HeaderWord
{
    std::string text;
    int column = 0;
    bool isAlone = false; // no other word follows it
    std::string next;     // the word after it
};

// Cheaper than to compare the words: most lines are not headers.
bool MayHoldHeader(const std::string& line)
{
    const size_t start = line.find_first_not_of(" \t");
    if (start == std::string::npos)
        return false;
    const auto isCapital = [](unsigned char ch) { return std::isupper(ch) != 0 || std::isspace(ch) != 0; };
    return line[start] == '$' || line[start] == '"' || line.compare(start, 5, "Begin") == 0 ||
           std::all_of(line.begin(), line.end(), isCapital);
}

HeaderWord HeaderWordOf(const std::string& line, Section section)
{
    if (!MayHoldHeader(line))
        return {};
    ClytTokenList tokens;
    static_cast<void>(lytTokenize(line.c_str(), DelimitersOf(section), tokens));
    if (tokens.IsEmpty())
        return {};
    POSITION place = tokens.GetHeadPosition();
    const ClytToken& first = tokens.GetNext(place);
    HeaderWord word = {first.GetText().GetString(), first.GetColumn(), place == nullptr, ""};
    if (!word.isAlone)
        word.next = tokens.GetAt(place).GetText().GetString();
    return word;
}

// The section whose header a word was meant to be. A word with a `$` is meant as one, and so is one in capitals that
// is alone. A blank ends the word of a header only where blanks separate.
std::optional<Section> MeantBy(const HeaderWord& word, Section present)
{
    std::string first = word.text.substr(0, word.text.find_first_of(" \t"));
    const bool hasSign = first.starts_with('$');
    if (first.empty() || (!hasSign && (!word.isAlone || first != word.text || first != Upper(first))))
        return std::nullopt;
    if (!hasSign && present == Section::Head)
        return std::nullopt;
    first = (hasSign ? "" : "$") + Upper(first);
    static const std::vector<std::string> known(std::begin(lytSectionWords), std::end(lytSectionWords));
    const auto place = std::ranges::find(known, commandline::Nearest(first, known));
    if (place == known.end())
        return std::nullopt;
    return allSections[place - known.begin()];
}

// The header as it should be: a comma ends its word where a blank does not.
std::string CorrectHeader(const HeaderWord& word, Section section)
{
    const size_t blank = word.text.find_first_of(" \t");
    const std::string name = blank != std::string::npos ? word.text.substr(blank + 1) : word.next;
    const char* const separator = section <= Section::Layout ? " " : ", ";
    return lytWordOf(section) + (name.empty() ? "" : separator + name);
}

// What a line of any section begins with.
std::string RoughHeaderWord(const std::string& line)
{
    const size_t start = line.find_first_not_of(" \t\"");
    if (start == std::string::npos || line[start] != '$')
        return "";
    std::string word = line.substr(start, line.find_first_of("=,\t();:/<>\"", start) - start);
    word.erase(word.find_last_not_of(' ') + 1);
    const std::string first = word.substr(0, word.find(' '));
    const bool isEndedByBlank = first == "$VERSION" || first == "$LAYOUT" || first == "$VALUES";
    return isEndedByBlank ? first : word;
}

Section Next(Section section)
{
    return section == Section::End ? section : static_cast<Section>(static_cast<int>(section) + 1);
}

// Whether a statement has the form of a section, and not that of the section above it.
bool SeemsToBegin(Section section, const std::string& line, bool hasLayoutEnded)
{
    const size_t start = line.find_first_not_of(" \t");
    if (start == std::string::npos || line[start] == ';')
        return false;
    const size_t sign = line.find_first_of("=:(/", start);
    const char first = sign != std::string::npos ? line[sign] : '\0';
    switch (section)
    {
    case Section::Values: return hasLayoutEnded;
    case Section::Dependencies: return first == '/' && line.find('=', sign) != std::string::npos;
    case Section::Evaluation: return first != '/' && line.find(':', start) != std::string::npos;
    case Section::Input: return first == ':';
    case Section::Output: return line[start] == '(' || (first != ':' && line.find("= (") != std::string::npos);
    default: return false;
    }
}

// Delivers the lines that the defines leave in, and notes the marks.
class SwitchedLines : public ClytLineSource
{
public:
    SwitchedLines(std::vector<const SourceLine*> lines, const std::string& defineList)
        : ClytLineSource(defineList.c_str())
    {
        m_lines.GoTo(std::move(lines));
    }
    std::vector<SwitchMark> TakeMarks() { return std::move(m_marks); }

protected:
    bool TakeLine(char* buffer, UINT count, ClytSpan& place) override
    {
        if (!m_lines.Take(buffer, count, place))
            return false;
        if (*buffer == '<' || *buffer == '>')
        {
            SwitchMark& mark = m_marks.emplace_back();
            mark.isOpening = *buffer == '<';
            mark.isInverted = mark.isOpening && IsInverted(buffer);
            mark.define = mark.isOpening ? DefineOf(buffer).GetString() : "";
            mark.place = place;
        }
        return true;
    }

private:
    SourceLines m_lines;
    std::vector<SwitchMark> m_marks;
};

} // namespace

DelimiterSet DelimitersOf(Section section)
{
    using enum ClytLineKind;
    static constexpr ClytLineKind kinds[] = {Header, Controls, Values, Dependencies, Evaluation, Input, Output};
    return DelimiterSet(section == Section::End ? "\n" : lytFormOf(kinds[static_cast<size_t>(section)]).delimiters);
}

DescriptionText::DescriptionText(std::string bytes, std::vector<std::string> defines)
    : m_bytes(std::move(bytes)), m_defines(std::move(defines))
{
    m_hasByteOrderMark = m_bytes.starts_with(byteOrderMark);
    const size_t start = m_hasByteOrderMark ? std::strlen(byteOrderMark) : 0;
    const size_t end = m_bytes.find(endOfText, start);
    SplitLines(m_bytes.substr(start, end - start));
    m_hasEndMark = end != std::string::npos;
    m_hasTextAfterEndMark = m_hasEndMark && m_bytes.find_first_not_of("\x1A \t\r\n", end) != std::string::npos;
    ApplyDefines();
    FindSections();
}

bool DescriptionText::IsDefined(const std::string& name) const
{
    return std::ranges::find(m_defines, name) != m_defines.end();
}

const SourceLine& DescriptionText::Line(int number) const
{
    static const SourceLine none;
    return number > 0 && static_cast<size_t>(number) <= m_lines.size() ? m_lines[static_cast<size_t>(number - 1)]
                                                                       : none;
}

const SourceLine* DescriptionText::HeaderOf(Section section) const
{
    const auto line = std::ranges::find_if(m_lines, [&](const SourceLine& candidate)
                                           { return candidate.isHeader && candidate.section == section; });
    return line != m_lines.end() ? &*line : nullptr;
}

std::vector<const SourceLine*> DescriptionText::LinesOf(Section section) const
{
    std::vector<const SourceLine*> found = LinesWithMarksOf(section);
    std::erase_if(found, [](const SourceLine* line) { return !line->isRead; });
    return found;
}

std::vector<const SourceLine*> DescriptionText::LinesWithMarksOf(Section section) const
{
    std::vector<const SourceLine*> found;
    for (const SourceLine& line : m_lines)
    {
        if (!line.isStray && line.section == section)
            found.push_back(&line);
    }
    return found;
}

void DescriptionText::SplitLines(const std::string& bytes)
{
    size_t start = 0;
    while (start < bytes.size())
    {
        const size_t end = bytes.find('\n', start);
        m_endsWithLineEnd = end != std::string::npos;
        SourceLine line;
        line.text = bytes.substr(start, end - start);
        line.number = static_cast<int>(m_lines.size()) + 1;
        if (m_endsWithLineEnd && line.text.ends_with('\r'))
            line.text.pop_back();
        m_lines.push_back(std::move(line));
        start = m_endsWithLineEnd ? end + 1 : bytes.size();
    }
}

void DescriptionText::ApplyDefines()
{
    std::vector<const SourceLine*> lines;
    for (SourceLine& line : m_lines)
    {
        line.isRead = false;
        lines.push_back(&line);
    }
    SwitchedLines reader(std::move(lines), Joined(m_defines, ","));
    char buffer[ClytDialogFile::lineSize + 1];
    while (reader.ReadString(buffer, ClytDialogFile::lineSize) != nullptr)
    {
        const ClytSpan& place = reader.GetLinePlace();
        if (place.column == 0)
            m_lines[static_cast<size_t>(place.line - 1)].isRead = true;
    }
    m_marks = reader.TakeMarks();
    std::unordered_set<std::string> names;
    for (const SwitchMark& mark : m_marks)
    {
        if (mark.isOpening && names.insert(mark.define).second)
            m_defineNames.push_back(mark.define);
    }
}

void DescriptionText::FindSections()
{
    for (const SourceLine& line : m_lines)
    {
        const auto found =
            line.isRead ? std::ranges::find(lytSectionWords, RoughHeaderWord(line.text)) : std::end(lytSectionWords);
        if (found != std::end(lytSectionWords))
            m_lastHeaders[allSections[found - std::begin(lytSectionWords)]] = line.number;
    }
    GoThroughSections({});
    const std::vector<Section> missing = SectionsWithoutHeader();
    if (!missing.empty())
        GoThroughSections(missing);
}

void DescriptionText::GoThroughSections(const std::vector<Section>& withoutHeader)
{
    m_falseHeaders.clear();
    Section present = Section::Head;
    bool hasEnded = false;
    for (SourceLine& line : m_lines)
    {
        line.isHeader = false;
        line.isStray = false;
        line.meant.clear();
        const Section before = present;
        if (line.isRead && present != Section::End)
            present = Opened(line, present);
        const bool isDue = std::ranges::find(withoutHeader, Next(present)) != withoutHeader.end();
        if (line.isRead && isDue && present == before && !line.isStray &&
            SeemsToBegin(Next(present), line.text, hasEnded))
            present = Next(present);
        hasEnded = hasEnded || (present == Section::Layout && line.text.find("End Dialog") != std::string::npos);
        line.section = present;
    }
}

std::vector<Section> DescriptionText::SectionsWithoutHeader() const
{
    std::vector<Section> missing;
    for (const Section section : allSections)
    {
        const bool isDue = section > Section::Layout && section < Section::End;
        if (isDue && (HeaderOf(section) == nullptr || HasFurtherPartsOnly(section)))
            missing.push_back(section);
    }
    return missing;
}

// Of the sections with parts, the first part is the one that every dialog has.
bool DescriptionText::HasFurtherPartsOnly(Section section) const
{
    const auto isFirst = [&](const SourceLine& line)
    { return line.isHeader && line.section == section && line.text.find("parent") != std::string::npos; };
    return (section == Section::Input || section == Section::Output) && std::ranges::none_of(m_lines, isFirst);
}

bool DescriptionText::BeginsWithoutHeader(Section section) const
{
    const auto first =
        std::ranges::find_if(m_lines, [&](const SourceLine& line) { return line.isRead && line.section == section; });
    return first != m_lines.end() && !first->isHeader;
}

bool DescriptionText::HasBelow(Section section, int line) const
{
    const auto last = m_lastHeaders.find(section);
    return last != m_lastHeaders.end() && last->second > line;
}

// A header by itself is in a wrong place when its section is open already, or when this section and the one that is
// due still come. Otherwise a section was moved, or left out.
bool DescriptionText::IsStray(Section section, Section present, int line) const
{
    const Section due = Next(present);
    const bool isFurtherPart = section == present && (section == Section::Input || section == Section::Output);
    if (section == due || isFurtherPart)
        return false;
    return section > present ? HasBelow(due, line) && HasBelow(section, line) : HeaderOf(section) != nullptr;
}

// A line that was meant as a header counts as one here, so that what follows it is judged as what it was meant to be.
// Without a line $LAYOUT the layout begins with the dialog.
Section DescriptionText::Opened(SourceLine& line, Section present)
{
    const HeaderWord word = HeaderWordOf(line.text, present);
    if (word.text.empty())
        return present;
    // Above the header of the layout it is free text.
    const bool isDialogLine = word.text == "Begin" && word.next == "Dialog";
    if (present == Section::Head && isDialogLine && !HasBelow(Section::Layout, line.number))
        return Section::Layout;
    for (const Section section : allSections)
    {
        const bool isFreeText = present == Section::Head && section > Section::Layout && HasBelow(Section::Layout, 0);
        if (word.text != lytWordOf(section) || isFreeText || (section == Section::Head && present != Section::Head))
            continue;
        line.isStray = section != Section::Head && IsStray(section, present, line.number);
        line.isHeader = !line.isStray;
        return line.isStray ? present : section;
    }
    const std::optional<Section> meant = MeantBy(word, present);
    if (!meant || (*meant == Section::Head && present != Section::Head))
        return present;
    const bool isFurtherPart = *meant == present && (present == Section::Input || present == Section::Output);
    // Of a section with parts the first header may be the wrong one, and the headers of further parts right.
    const bool isFirstPart = *meant == Next(present) && (*meant == Section::Input || *meant == Section::Output);
    if (!isFurtherPart && !isFirstPart && (HasBelow(*meant, 0) || IsStray(*meant, present, line.number)))
        return present;
    line.isHeader = *meant != Section::Head;
    line.meant = CorrectHeader(word, *meant);
    m_falseHeaders.push_back(
        {*meant, present, word.text, line.meant, {line.number, word.column, static_cast<int>(word.text.size())}});
    return *meant;
}

} // namespace lytdlg
