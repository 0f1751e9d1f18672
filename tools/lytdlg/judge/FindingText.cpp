#include "lytdlg/judge/FindingText.h"

#include "commandline/Text.h"

namespace lytdlg
{

namespace
{

// The blanks up to a column, tabs kept, so that the caret stands under the place however wide a tab is.
std::string BlanksTo(const std::string& line, size_t column)
{
    std::string blanks = line.substr(0, std::min(column, line.size()));
    for (char& ch : blanks)
        ch = ch == '\t' ? '\t' : ' ';
    return blanks;
}

const char* ColourOf(Level level)
{
    switch (level)
    {
    case Level::Error: return "\033[1;31m";
    case Level::Warning: return "\033[1;33m";
    default: return "\033[1;36m";
    }
}

} // namespace

std::string TextOf(const Finding& finding, const Description& description, bool isColoured)
{
    const char* const colour = isColoured ? ColourOf(finding.rule->level) : "";
    const char* const plain = isColoured ? "\033[0m" : "";
    const std::string number = finding.number.empty() ? "" : " (message " + finding.number + ")";
    std::string text = description.path + ":" + std::to_string(finding.place.line) + ":" +
                       std::to_string(finding.place.column + 1) + ": " + colour + WordOf(finding.rule->level) + plain +
                       " " + finding.rule->id + ": " + commandline::ToUtf8(finding.message) + number + "\n";
    if (finding.place.line > 0)
    {
        const std::string& line = description.text.Line(finding.place.line).text;
        text += "    " + commandline::ToUtf8(line) + "\n    " +
                BlanksTo(line, static_cast<size_t>(finding.place.column)) + colour + "^" +
                std::string(static_cast<size_t>(std::max(0, finding.place.length - 1)), '~') + plain + "\n";
    }
    if (!finding.hint.empty())
        text += "    hint: " + commandline::ToUtf8(finding.hint) + "\n";
    return text;
}

} // namespace lytdlg
