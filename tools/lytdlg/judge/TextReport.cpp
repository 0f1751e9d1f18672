#include "commandline/Program.h"
#include "commandline/Text.h"
#include "lytdlg/judge/Report.h"

#include <cstdio>

namespace lytdlg
{

using commandline::Shown;

namespace
{

// The blanks up to a column, tabs kept, so that the caret is under the place however wide a tab is.
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

std::string Counted(int count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

class TextReport : public Report
{
public:
    void Add(const Description& description, const Findings& findings) override
    {
        for (const Finding& finding : findings.All())
            std::fputs(TextOf(finding, description, m_isColoured).c_str(), stdout);
    }

    void End(const Counts& counts) override
    {
        std::printf("%s judged: %s, %s, %s\n", Counted(counts.files, "description", "descriptions").c_str(),
                    Counted(counts.errors, "error", "errors").c_str(),
                    Counted(counts.warnings, "warning", "warnings").c_str(),
                    Counted(counts.notes, "note", "notes").c_str());
    }

private:
    const bool m_isColoured = commandline::IsTerminal(stdout);
};

class GccReport : public Report
{
public:
    void Add(const Description& description, const Findings& findings) override
    {
        for (const Finding& finding : findings.All())
        {
            const std::string hint = finding.hint.empty() ? "" : "; " + finding.hint;
            std::printf("%s:%d:%d: %s: %s [%s]\n", commandline::Printable(PathOf(finding, description)).c_str(),
                        std::max(1, finding.place.line), finding.place.column + 1, WordOf(finding.rule->level),
                        Shown(WholeMessageOf(finding) + hint).c_str(), finding.rule->id.c_str());
        }
    }

    void End(const Counts& /*counts*/) override {}
};

} // namespace

std::unique_ptr<Report> MakeTextReport()
{
    return std::make_unique<TextReport>();
}

std::unique_ptr<Report> MakeGccReport()
{
    return std::make_unique<GccReport>();
}

std::string TextOf(const Finding& finding, const Description& description, bool isColoured)
{
    const char* const colour = isColoured ? ColourOf(finding.rule->level) : "";
    const char* const plain = isColoured ? "\033[0m" : "";
    const std::string number = finding.number.empty() ? "" : " (message " + finding.number + ")";
    std::string text = commandline::Printable(PathOf(finding, description)) + ":" + std::to_string(finding.place.line) +
                       ":" + std::to_string(finding.place.column + 1) + ": " + colour + WordOf(finding.rule->level) +
                       plain + " " + finding.rule->id + ": " + Shown(WholeMessageOf(finding)) + number + "\n";
    if (finding.place.line > 0)
    {
        const std::string& line = LineOf(finding, description);
        text += "    " + Shown(line) + "\n    " + BlanksTo(line, static_cast<size_t>(finding.place.column)) + colour +
                "^" + std::string(static_cast<size_t>(std::max(0, finding.place.length - 1)), '~') + plain + "\n";
    }
    if (!finding.hint.empty())
        text += "    hint: " + Shown(finding.hint) + "\n";
    return text;
}

} // namespace lytdlg
