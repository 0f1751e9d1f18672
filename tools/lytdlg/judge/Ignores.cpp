#include "lytdlg/judge/Families.h"

#include "commandline/CommandLine.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

constexpr const char* remarkBegin = "; lytdlg: ignore";

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
        const size_t start = line.text.find(remarkBegin);
        if (start == std::string::npos)
            continue;
        const std::string rest = line.text.substr(start + std::string(remarkBegin).size());
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

ClytSpan WithBlanksBefore(const DescriptionText& text, ClytSpan place)
{
    const std::string& line = text.Line(place.line).text;
    const size_t end = line.find_last_not_of(" \t", static_cast<size_t>(place.column) - 1);
    const int start = place.column == 0 || end == std::string::npos ? 0 : static_cast<int>(end) + 1;
    return {place.line, start, place.length + place.column - start};
}

bool Finds(const std::string& rule, const Remark& remark, const Findings& findings)
{
    return std::ranges::any_of(
        findings.All(), [&](const Finding& finding)
        { return finding.path.empty() && finding.place.line == remark.place.line && finding.rule->id == rule; });
}

// A remark that would silence nothing once it is right is better deleted.
void AddIdle(const Description& description, RuleName rule, const Remark& remark, std::string message,
             Findings& findings)
{
    findings.Add(rule, remark.place, std::move(message), "delete the remark: there is nothing for it to silence")
        .FixPerhaps(WithBlanksBefore(description.text, remark.place), "");
}

void JudgeUnknown(const Description& description, const Remark& remark, Findings& findings)
{
    const std::string message = "there is no rule \"" + remark.rule + "\"";
    const std::string meant =
        remark.rule.empty() ? "" : commandline::Nearest(remark.rule, {ruleNames.begin(), ruleNames.end()});
    if (!meant.empty() && !Finds(meant, remark, findings))
        return AddIdle(description, "ignore-unknown", remark, message, findings);
    Finding& finding = findings.Add("ignore-unknown", remark.place, message, HintForRule(remark.rule));
    const ClytSpan place = description.PlaceOf(remark.place.line, remark.rule, remark.place.column);
    if (!meant.empty() && place.length == static_cast<int>(remark.rule.size()))
        finding.FixPerhaps(place, meant);
}

void JudgeReasonless(const Description& description, const Remark& remark, Findings& findings)
{
    const std::string message = "the remark gives no reason";
    if (!Finds(remark.rule, remark, findings))
        return AddIdle(description, "ignore-without-reason", remark, message, findings);
    findings.Add("ignore-without-reason", remark.place, message, "write why after \"" + remark.rule + "\"");
}

} // namespace

void ApplyIgnores(const Description& description, Findings& findings)
{
    const std::vector<Remark> remarks = RemarksOf(description.text);
    Silenced silenced;
    Silence(remarks, findings, silenced);
    for (const Remark& remark : remarks)
    {
        if (FindRule(remark.rule) == nullptr)
            JudgeUnknown(description, remark, findings);
        else if (!remark.hasReason)
            JudgeReasonless(description, remark, findings);
        else if (silenced[{remark.place.line, remark.rule}] == 0)
            findings
                .Add("ignore-unused", remark.place, "\"" + remark.rule + "\" finds nothing here", "delete the remark")
                .FixSafely(WithBlanksBefore(description.text, remark.place), "");
    }
}

} // namespace lytdlg
