#include "lytdlg/judge/SectionReader.h"

#include "lytdlg/text/Words.h"

namespace lytdlg
{

namespace
{

SourceLine MadeLine(const char* text)
{
    SourceLine line;
    line.text = text;
    return line;
}

// The header that a section should have.
const SourceLine* MadeHeader(Section section)
{
    static const std::vector<SourceLine> headers = []
    {
        std::vector<SourceLine> made;
        for (const char* word : lytSectionWords)
            made.push_back(MadeLine(word));
        made.front().text += " 1";
        return made;
    }();
    return &headers[static_cast<size_t>(section)];
}

} // namespace

SectionReader::SectionReader(const DescriptionText& text, std::vector<Mistake>& mistakes)
    : ClytDialogFile(Joined(text.Defines(), ",").c_str(), m_sink), m_text(text), m_sink(mistakes)
{
}

void SectionReader::BeginSectionBefore(Section end)
{
    if (m_end == end)
        return;
    m_end = end;
    const auto section = static_cast<Section>(static_cast<int>(end) - 1);
    std::vector<const SourceLine*> lines = m_text.LinesWithMarksOf(section);
    const std::vector<const SourceLine*> next = m_text.LinesWithMarksOf(end);
    const bool hasHeader = !next.empty() && next.front()->isHeader;
    if (section == Section::Head && !hasHeader)
        lines = {MadeHeader(section)};
    else if (section != Section::Head && !lines.empty() && lines.front()->isHeader)
        lines.erase(lines.begin());
    // The header is read also where a mark has switched off what is above it. Where the reader refuses it, the one that
    // should be there ends the section.
    static const SourceLine switchOn = MadeLine(">");
    lines.push_back(&switchOn);
    if (hasHeader)
        lines.push_back(next.front());
    lines.push_back(MadeHeader(end));
    m_lines.GoTo(std::move(lines));
}

} // namespace lytdlg
