#include "lytdlg/text/LineDiff.h"

#include <algorithm>
#include <vector>

namespace lytdlg
{

namespace
{

constexpr size_t around = 3;

using Lines = std::vector<std::string>;

// Each line with its end.
Lines LinesWithEndsOf(const std::string& text)
{
    Lines lines;
    for (size_t start = 0; start < text.size();)
    {
        const size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
        lines.push_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

std::string Marked(char mark, const std::string& line)
{
    return mark + line + (line.ends_with('\n') ? "" : "\n\\ No newline at end of file\n");
}

// Two texts, line beside line.
class Comparison
{
public:
    Comparison(const std::string& before, const std::string& after)
        : m_before(LinesWithEndsOf(before)), m_after(LinesWithEndsOf(after))
    {
    }

    // The changes from a line on that have no gap between them, with the lines around; `next` goes after them.
    std::string Hunk(size_t& next) const
    {
        const size_t first = NextChange(next);
        if (first == m_before.size())
            return next = first, std::string();
        size_t end = EndOfChange(first);
        for (size_t change = NextChange(end); change != m_before.size() && change - end <= 2 * around;
             change = NextChange(end))
            end = EndOfChange(change);
        next = end;
        const size_t start = first - std::min(first, around);
        return Shown(start, std::min(end + around, m_before.size()));
    }

private:
    size_t NextChange(size_t line) const
    {
        while (line < m_before.size() && m_before[line] == m_after[line])
            ++line;
        return line;
    }
    size_t EndOfChange(size_t line) const
    {
        while (line < m_before.size() && m_before[line] != m_after[line])
            ++line;
        return line;
    }

    std::string Shown(size_t start, size_t end) const
    {
        const std::string range = std::to_string(start + 1) + "," + std::to_string(end - start);
        std::string hunk = "@@ -" + range + " +" + range + " @@\n";
        for (size_t line = start; line < end;)
        {
            const size_t changeEnd = std::min(EndOfChange(line), end);
            for (size_t i = line; i < changeEnd; ++i)
                hunk += Marked('-', m_before[i]);
            for (size_t i = line; i < changeEnd; ++i)
                hunk += Marked('+', m_after[i]);
            if (line == changeEnd)
                hunk += Marked(' ', m_before[line++]);
            else
                line = changeEnd;
        }
        return hunk;
    }

    Lines m_before;
    Lines m_after;
};

} // namespace

std::string LineDiff(const std::string& name, const std::string& before, const std::string& after)
{
    if (before == after)
        return {};
    std::string diff = "--- " + name + "\n+++ " + name + "\n";
    const Comparison comparison(before, after);
    size_t next = 0;
    for (std::string hunk = comparison.Hunk(next); !hunk.empty(); hunk = comparison.Hunk(next))
        diff += hunk;
    return diff;
}

} // namespace lytdlg
