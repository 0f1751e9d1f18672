#include "FormattingProof.h"

#include "DescriptionRecords.h"
#include "lytdlg/text/DescriptionLines.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>

namespace
{

std::string LineEndsOf(const std::string& text)
{
    std::string ends;
    for (size_t feed = text.find('\n'); feed != std::string::npos; feed = text.find('\n', feed + 1))
        ends += feed > 0 && text[feed - 1] == '\r' ? 'r' : 'n';
    return ends;
}

// The first line in which two records differ.
std::string FirstDifference(const std::string& before, const std::string& after)
{
    const auto place = std::ranges::mismatch(before, after);
    const size_t end = static_cast<size_t>(place.in1 - before.begin());
    const size_t start = before.rfind('\n', end > 0 ? end - 1 : 0) + 1;
    return before.substr(start, before.find('\n', end) - start) + "\n  is now\n" +
           after.substr(start, after.find('\n', end) - start);
}

} // namespace

std::string BreachOfFormatting(const std::string& content)
{
    const lytdlg::FileForLibrary beforeFile(content);
    const std::string before = beforeFile.Name().string();
    std::string formatted;
    try
    {
        formatted = lytdlg::FormattedDescription(before, content);
    }
    catch (const lytdlg::TooManyDefines&)
    {
        return {};
    }
    const lytdlg::FileForLibrary afterFile(formatted);
    const std::string after = afterFile.Name().string();
    const std::string again = lytdlg::FormattedDescription(after, formatted);
    if (again != formatted)
        return "formatted again, it changes:\n" + FirstDifference(formatted, again);
    if (LineEndsOf(content) != LineEndsOf(formatted))
        return "the line ends differ";
    const auto lines = lytdlg::ReadDescriptionLines(before, content).lines;
    for (const std::string& choice : lytdlg::ChoicesOf(lytdlg::DefinesOf(lines)))
    {
        const std::string read = RecordsOf(before, choice);
        const std::string readAfter = RecordsOf(after, choice);
        if (read != readAfter)
            return "with the defines \"" + choice + "\" it is read otherwise:\n" + FirstDifference(read, readAfter);
    }
    return {};
}
