#include "lytdlg/text/Diff.h"

#include "commandline/Text.h"

#include <algorithm>
#include <vector>

namespace lytdlg
{

namespace
{

using DiffLines = std::vector<std::string>;

constexpr size_t linesAround = 3;
// More lines than these, by as many others, are not compared one by one.
constexpr size_t mostComparisons = 4'000'000;

// A line of one version or of both: ' ', '-' or '+', and its place in each.
struct DiffLine
{
    char sign = ' ';
    size_t before = 0;
    size_t after = 0;
};

class Comparison
{
public:
    Comparison(const DiffLines& before, const DiffLines& after) : m_before(before), m_after(after) {}

    std::vector<DiffLine> Lines()
    {
        const size_t least = std::min(m_before.size(), m_after.size());
        while (m_start < least && m_before[m_start] == m_after[m_start])
            ++m_start;
        size_t same = 0;
        while (same < least - m_start && m_before[m_before.size() - same - 1] == m_after[m_after.size() - same - 1])
            ++same;
        m_rows = m_before.size() - same - m_start;
        m_columns = m_after.size() - same - m_start;
        CountCommon();
        AddSame(m_start);
        AddMiddle();
        AddSame(same);
        return std::move(m_lines);
    }

private:
    // How many lines the rests of both versions have in common, from each pair of places on.
    void CountCommon()
    {
        m_common.assign(m_rows * m_columns > mostComparisons ? 0 : (m_rows + 1) * (m_columns + 1), 0);
        if (m_common.empty())
            return;
        for (size_t row = m_rows; row-- > 0;)
        {
            for (size_t column = m_columns; column-- > 0;)
                m_common[At(row, column)] =
                    IsSame(row, column) ? m_common[At(row + 1, column + 1)] + 1
                                        : std::max(m_common[At(row + 1, column)], m_common[At(row, column + 1)]);
        }
    }

    size_t At(size_t row, size_t column) const { return row * (m_columns + 1) + column; }
    bool IsSame(size_t row, size_t column) const { return m_before[m_start + row] == m_after[m_start + column]; }

    void AddMiddle()
    {
        size_t row = 0;
        size_t column = 0;
        while (row < m_rows || column < m_columns)
        {
            if (!m_common.empty() && row < m_rows && column < m_columns && IsSame(row, column))
            {
                Add(' ');
                ++row;
                ++column;
            }
            else if (row < m_rows && (m_common.empty() || column == m_columns ||
                                      m_common[At(row + 1, column)] >= m_common[At(row, column + 1)]))
            {
                Add('-');
                ++row;
            }
            else
            {
                Add('+');
                ++column;
            }
        }
    }

    void AddSame(size_t count)
    {
        for (size_t line = 0; line < count; ++line)
            Add(' ');
    }

    void Add(char sign)
    {
        m_lines.push_back({sign, m_nextBefore, m_nextAfter});
        m_nextBefore += sign != '+' ? 1 : 0;
        m_nextAfter += sign != '-' ? 1 : 0;
    }

    const DiffLines& m_before;
    const DiffLines& m_after;
    size_t m_start = 0; // the first line that differs
    size_t m_rows = 0;  // lines from there that may differ
    size_t m_columns = 0;
    std::vector<size_t> m_common;
    std::vector<DiffLine> m_lines;
    size_t m_nextBefore = 0;
    size_t m_nextAfter = 0;
};

std::string Range(size_t start, size_t count)
{
    return std::to_string(count == 0 ? start : start + 1) + (count == 1 ? "" : "," + std::to_string(count));
}

// The lines from one to another, both near a difference.
std::string Hunk(const std::vector<DiffLine>& lines, size_t begin, size_t end, const DiffLines& before,
                 const DiffLines& after)
{
    std::string body;
    size_t left = 0;
    size_t right = 0;
    for (size_t index = begin; index < end; ++index)
    {
        const DiffLine& line = lines[index];
        left += line.sign != '+' ? 1 : 0;
        right += line.sign != '-' ? 1 : 0;
        body += line.sign + commandline::Shown(line.sign == '+' ? after[line.after] : before[line.before]) + "\n";
    }
    return "@@ -" + Range(lines[begin].before, left) + " +" + Range(lines[begin].after, right) + " @@\n" + body;
}

} // namespace

std::string DiffOf(const std::string& name, const std::string& before, const std::string& after)
{
    if (before == after)
        return "";
    const DiffLines left = commandline::LinesOf(before);
    const DiffLines right = commandline::LinesOf(after);
    const std::vector<DiffLine> lines = Comparison(left, right).Lines();
    const std::string shown = commandline::Printable(name);
    std::string diff = "--- " + shown + "\n+++ " + shown + "\n";
    for (size_t index = 0; index < lines.size(); ++index)
    {
        if (lines[index].sign == ' ')
            continue;
        const size_t begin = index - std::min(index, linesAround);
        size_t last = index;
        for (; index < lines.size() && index <= last + 2 * linesAround; ++index)
            last = lines[index].sign != ' ' ? index : last;
        const size_t end = std::min(last + 1 + linesAround, lines.size());
        diff += Hunk(lines, begin, end, left, right);
        index = end - 1;
    }
    return diff;
}

} // namespace lytdlg
