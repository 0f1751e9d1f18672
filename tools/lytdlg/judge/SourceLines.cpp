#include "lytdlg/judge/SourceLines.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace lytdlg
{

void SourceLines::GoTo(std::vector<const SourceLine*> lines)
{
    if (m_next.column != 0)
        lines.insert(lines.begin(), m_lines[m_next.line]);
    m_next.line = 0;
    m_lines = std::move(lines);
}

bool SourceLines::Take(char* buffer, unsigned count, ClytSpan& place)
{
    if (m_next.line >= m_lines.size())
        return false;
    m_taken = m_next;
    const SourceLine& line = *m_lines[m_taken.line];
    const size_t column = m_taken.column;
    const std::string& whole = line.meant.empty() ? line.text : line.meant;
    const std::string_view piece = std::string_view(whole).substr(column, count);
    const bool isLast = piece.size() < count;
    char* after = std::copy(piece.begin(), piece.end(), buffer);
    if (isLast)
        *after++ = '\n';
    *after = '\0';
    const int missing = column == 0 ? place.line + 1 : place.line;
    place = {line.number != 0 ? line.number : missing, static_cast<int>(column),
             static_cast<int>(std::strcspn(buffer, "\n"))};
    m_next = isLast ? Position{m_taken.line + 1, 0} : Position{m_taken.line, column + piece.size()};
    return true;
}

} // namespace lytdlg
