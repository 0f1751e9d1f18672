#include "lytdlg/judge/Ignores.h"

#include "commandline/Suggestion.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

constexpr const char* mark = "; lytdlg: ignore";

constexpr Rule unknown = {
    "ignore-unknown",
    Level::Warning,
    "A remark silences a rule that does not exist.",
    "A remark reads `; lytdlg: ignore RULE reason`, with the name of the rule as a finding gives it.",
    "$VALUES\n    Unit = 60   ; lytdlg: ignore value-twcie kept for older documents",
    "$VALUES\n    Unit = 60"};

constexpr Rule unreasoned = {
    "ignore-without-reason",
    Level::Warning,
    "A remark silences a rule but does not say why.",
    "Whoever reads the description later wants to know why the finding is no mistake. Write the\n"
    "reason after the name of the rule.",
    "$VALUES\n    Unit = 60   ; lytdlg: ignore ignore-unused",
    "$VALUES\n    Unit = 60"};

constexpr Rule unused = {"ignore-unused",
                         Level::Note,
                         "A remark silences a rule that finds nothing there.",
                         "It does no harm, but would hide a mistake that is made in this line later: delete it.",
                         "$VALUES\n    Unit = 60   ; lytdlg: ignore ignore-unknown nothing is here to silence",
                         "$VALUES\n    Unit = 60"};

struct Remark
{
    ClytSpan place;
    std::string rule;
    bool hasReason = false;
};

std::vector<Remark> RemarksOf(const DescriptionText& text)
{
    std::vector<Remark> remarks;
    for (const SourceLine& line : text.Lines())
    {
        const size_t start = line.text.find(mark);
        if (start == std::string::npos)
            continue;
        const std::string rest = line.text.substr(start + std::string(mark).size());
        const size_t word = std::min(rest.find_first_not_of(' '), rest.size());
        const size_t end = std::min(rest.find(' ', word), rest.size());
        Remark& remark = remarks.emplace_back();
        remark.place = {line.number, static_cast<int>(start), static_cast<int>(line.text.size() - start)};
        remark.rule = rest.substr(word, end - word);
        remark.hasReason = rest.find_first_not_of(' ', end) != std::string::npos;
    }
    return remarks;
}

// How many findings each rule has in each line.
using Silenced = std::map<std::pair<int, std::string>, size_t>;

// Takes away what the remarks silence.
void Silence(const std::vector<Remark>& remarks, Findings& findings, Silenced& silenced)
{
    for (const Remark& remark : remarks)
    {
        if (remark.hasReason && FindRule(remark.rule) != nullptr)
            silenced[{remark.place.line, remark.rule}] = 0;
    }
    findings.Remove(
        [&](const Finding& finding)
        {
            if (silenced.empty() || !finding.path.empty() || finding.rule->level == Level::Error)
                return false;
            const auto remark = silenced.find({finding.place.line, finding.rule->id});
            return remark != silenced.end() && ++remark->second > 0;
        });
}

} // namespace

Family IgnoreRules()
{
    return {{&unknown, &unreasoned, &unused}, [](const Case&) {}};
}

void ApplyIgnores(const Description& description, Findings& findings)
{
    const std::vector<Remark> remarks = RemarksOf(description.text);
    Silenced silenced;
    Silence(remarks, findings, silenced);
    for (const Remark& remark : remarks)
    {
        if (FindRule(remark.rule) == nullptr)
        {
            const std::string nearest = commandline::Nearest(remark.rule, RuleNames());
            findings.Add(unknown, remark.place, "there is no rule \"" + remark.rule + "\"",
                         nearest.empty() ? "`lytdlg check --rules` lists them" : "did you mean \"" + nearest + "\"?");
        }
        else if (!remark.hasReason)
            findings.Add(unreasoned, remark.place, "the remark gives no reason",
                         "write why after \"" + remark.rule + "\"");
        else if (silenced[{remark.place.line, remark.rule}] == 0)
            findings.Add(unused, remark.place, "\"" + remark.rule + "\" finds nothing here", "delete the remark");
    }
}

} // namespace lytdlg
