#include "lytdlg/judge/SectionReader.h"

#include <algorithm>
#include <string_view>

namespace lytdlg
{

SectionReader::SectionReader(std::vector<const SourceLine*> sectionLines, const char* endWord,
                             std::vector<Mistake>& mistakes)
    : ClytDialogFile(nullptr, m_sink),
      m_sink(mistakes, sectionLines.empty() ? 0 : sectionLines.back()->number),
      m_lines(std::move(sectionLines)),
      m_endLine(endWord)
{
}

int SectionReader::TakeLine(char* buffer, UINT count)
{
    if (m_line > m_lines.size())
        return 0;
    const bool isEnd = m_line == m_lines.size();
    const std::string& whole = isEnd                            ? m_endLine
                               : m_lines[m_line]->meant.empty() ? m_lines[m_line]->text
                                                                : m_lines[m_line]->meant;
    // A NUL byte ends what is read of the line. One further on is met when its piece is read.
    const size_t end = std::string_view(whole).substr(m_column, count).find('\0');
    const std::string_view line =
        std::string_view(whole).substr(0, end != std::string::npos ? m_column + end : whole.size());
    const size_t length = std::min<size_t>(line.size() + 1 - m_column, count);
    for (size_t index = 0; index < length; ++index)
        buffer[index] = m_column + index < line.size() ? line[m_column + index] : '\n';
    buffer[length] = '\0';
    m_column += length;
    const int number = isEnd ? m_number + 1 : m_lines[m_line]->number;
    if (m_column > line.size())
    {
        ++m_line;
        m_column = 0;
    }
    // A further piece of a line does not count as a line.
    return std::max(1, number - std::exchange(m_number, number));
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
