#include "lytdlg/judge/DescriptionText.h"

#include "commandline/Suggestion.h"

#include <algorithm>
#include <cctype>

namespace lytdlg
{

namespace
{

constexpr const char* words[] = {"$VERSION",    "$LAYOUT", "$VALUES", "$DEPENDANCES",
                                 "$EVALUATION", "$INPUT",  "$OUTPUT", "$END"};
// A line is read in pieces of this length, and each counts.
constexpr size_t pieceLength = 399;
constexpr char endOfText = 0x1A;

std::string Upper(std::string text)
{
    std::ranges::transform(text, text.begin(), [](unsigned char ch) { return static_cast<char>(std::toupper(ch)); });
    return text;
}

// Headers are few and unlike each other, so a word that is close to one was meant as it.
bool IsLike(const std::string& word, const char* header)
{
    const std::string upper = Upper(word);
    return upper == header || "$" + upper == header || commandline::IsClose(upper, header);
}

// The first word of a line, as the reader of a section takes it.
struct HeaderWord
{
    std::string text;
    int column = 0;
    bool isAlone = false; // nothing but a comment follows it
};

HeaderWord HeaderWordOf(const std::string& line, Section section)
{
    const size_t start = line.find_first_not_of(" \t");
    if (start == std::string::npos || line[start] == ';')
        return {};
    const bool isBlankAnEnd = section == Section::Head || section == Section::Layout;
    const size_t end = std::min(line.find_first_of(isBlankAnEnd ? " ,\t();:=<>/" : ",\t():;=<>/", start), line.size());
    std::string text = line.substr(start, end - start);
    text.erase(text.find_last_not_of(' ') + 1);
    const size_t next = line.find_first_not_of(" \t", end);
    return {text, static_cast<int>(start), next == std::string::npos || line[next] == ';'};
}

// A word with a `$` is meant as a header, and so is one that stands alone. A blank ends the word of a header only where
// blanks separate.
bool IsMeantAs(const HeaderWord& word, Section section)
{
    const std::string first = word.text.substr(0, word.text.find(' '));
    if (first.empty() || (first.front() != '$' && !(word.isAlone && first == word.text)))
        return false;
    return IsLike(first, WordOf(section));
}

int PiecesOf(const std::string& text)
{
    return static_cast<int>((text.size() + 1 + pieceLength - 1) / pieceLength);
}

} // namespace

const char* WordOf(Section section)
{
    return words[static_cast<size_t>(section)];
}

DescriptionText::DescriptionText(const std::string& bytes, const std::vector<std::string>& defines)
{
    SplitLines(bytes.substr(0, bytes.find(endOfText)));
    m_hasEndMark = bytes.find(endOfText) != std::string::npos;
    ApplyDefines(defines);
    FindSections();
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
    std::vector<const SourceLine*> found;
    for (const SourceLine& line : m_lines)
    {
        if (line.isRead && line.section == section)
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

void DescriptionText::ApplyDefines(const std::vector<std::string>& defines)
{
    bool isActive = true;
    int counted = 0;
    for (SourceLine& line : m_lines)
    {
        const bool isMark = line.text.starts_with('<') || line.text.starts_with('>');
        if (line.text.starts_with('<'))
        {
            const size_t start = line.text.starts_with("<!") ? 2 : 1;
            const std::string name = line.text.substr(start, line.text.find_first_of(" \t;", start) - start);
            isActive = (std::ranges::find(defines, name) != defines.end()) == (start == 1);
            if (std::ranges::find(m_defineNames, name) == m_defineNames.end())
                m_defineNames.push_back(name);
        }
        else if (isMark)
            isActive = true;
        line.isRead = isActive && !isMark;
        if (!line.isRead)
            continue;
        line.counted = counted + 1;
        counted += PiecesOf(line.text);
    }
}

void DescriptionText::FindSections()
{
    Section present = Section::Head;
    for (SourceLine& line : m_lines)
    {
        if (line.isRead)
            present = Opened(line, present);
        line.section = present;
    }
}

// A line that was meant as a header counts as one here, so that what follows it is judged as what it was meant to be.
Section DescriptionText::Opened(SourceLine& line, Section present)
{
    const HeaderWord word = HeaderWordOf(line.text, present);
    for (const Section section : allSections)
    {
        if (word.text != WordOf(section) || (section == Section::Head && present != Section::Head))
            continue;
        line.isHeader = true;
        return section;
    }
    const auto meant = std::ranges::find_if(allSections, [&](Section section) { return IsMeantAs(word, section); });
    if (meant == std::end(allSections) || *meant == Section::Head)
        return present;
    line.isHeader = true;
    m_falseHeaders.push_back({*meant, word.text, {line.number, word.column, static_cast<int>(word.text.size())}});
    return *meant;
}

} // namespace lytdlg
