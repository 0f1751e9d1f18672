#include "lytdlg/judge/SourceLines.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace lytdlg
{

SourceLines::SourceLines(std::vector<const SourceLine*> lines, std::vector<std::string> end)
    : m_lines(std::move(lines)), m_end(std::move(end))
{
}

const std::string& SourceLines::Present() const
{
    if (m_line >= m_lines.size())
        return m_end[m_line - m_lines.size()];
    const SourceLine& line = *m_lines[m_line];
    return line.meant.empty() ? line.text : line.meant;
}

int SourceLines::Take(char* buffer, unsigned count)
{
    if (m_line >= m_lines.size() + m_end.size())
        return 0;
    // A NUL byte ends what is read of the line. One further on is met when its piece is read.
    const std::string_view whole = Present();
    const size_t end = whole.substr(m_column, count).find('\0');
    const std::string_view line = whole.substr(0, end != std::string::npos ? m_column + end : whole.size());
    const size_t length = std::min<size_t>(line.size() + 1 - m_column, count);
    for (size_t index = 0; index < length; ++index)
        buffer[index] = m_column + index < line.size() ? line[m_column + index] : '\n';
    buffer[length] = '\0';
    m_pieceColumn = static_cast<int>(m_column);
    m_column += length;
    const int number = m_line < m_lines.size() ? m_lines[m_line]->number : m_number + (m_pieceColumn == 0 ? 1 : 0);
    if (m_column > line.size())
    {
        ++m_line;
        m_column = 0;
    }
    // A further piece of a line does not count as a line.
    return std::max(1, number - std::exchange(m_number, number));
}

} // namespace lytdlg
