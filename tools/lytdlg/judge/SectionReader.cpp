#include "lytdlg/judge/SectionReader.h"

#include "lytdlg/text/Words.h"

namespace lytdlg
{

namespace
{

int LastRead(const std::vector<const SourceLine*>& lines)
{
    int last = 0;
    for (const SourceLine* line : lines)
        last = line->isRead ? line->number : last;
    return last;
}

} // namespace

// The end word is read also where a mark has switched off what is above it.
SectionReader::SectionReader(const DescriptionText& text, std::vector<const SourceLine*> sectionLines,
                             const char* endWord, std::vector<Mistake>& mistakes)
    : ClytDialogFile(Joined(text.Defines(), ",").c_str(), m_sink),
      m_sink(mistakes, LastRead(sectionLines)),
      m_lines(std::move(sectionLines), {">", endWord})
{
}

ClytSpan SectionReader::Sink::InFile(const ClytSpan& place) const
{
    return place.line <= lastLine ? place : ClytSpan{lastLine, 0, 0};
}

void SectionReader::Sink::Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place)
{
    mistakes.push_back({failure->GetNumber().GetString(), failure->GetArgument().GetString(), InFile(place)});
}

void SectionReader::Sink::TellShortLine(const ClytSpan& place)
{
    mistakes.push_back({"", "", InFile(place)});
}

} // namespace lytdlg
