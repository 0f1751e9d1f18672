#include "lytdlg/judge/Judge.h"

#include "environment/ClytException.h"
#include "lytdlg/judge/Families.h"
#include "lytdlg/text/Encoding.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <set>

namespace lytdlg
{

namespace
{

// In the order of the sections. The library comes after them: it looks whether a finding explains its failure.
constexpr void (*families[])(const Case& judged) = {
    ApplySectionRules,     ApplyLineRules,       ApplyMarkRules,     ApplyStatementRules, ApplyWordRules,
    ApplyLayoutRules,      ApplyValueRules,      ApplyContentRules,  ApplyActionRules,    ApplyDependencyRules,
    ApplyConditionRules,   ApplyEvaluationRules, ApplyScanRules,     ApplySeparatorRules, ApplyFillRules,
    ApplyOutputGroupRules, ApplyOutputRules,     ApplyFormatRules,   ApplyNamedRules,     ApplyLanguageFileRules,
    ApplyTextRules,        ApplyMnemonicRules,   ApplyGeometryRules, ApplyPartnerRules,   ApplyLibraryVerdict};

// A rule that tells of what a section does not say.
struct Lack
{
    Section section;
    RuleName rule;
};

constexpr Lack lacks[] = {
    {Section::Values, "action-missing"},       {Section::Values, "check-texts"},
    {Section::Values, "option-without-value"}, {Section::Values, "action-fill"},
    {Section::Values, "fill-without-source"},  {Section::Values, "condition-value"},
    {Section::Values, "evaluation-value"},     {Section::Input, "action-part"},
    {Section::Output, "action-group"},         {Section::Output, "evaluation-never"},
};

// A file that ends too soon has a finding for that. What its last section and those after it would have said is not
// known.
bool IsCutOff(const DescriptionText& text, Section section)
{
    return std::ranges::none_of(allSections,
                                [&](Section later) { return later > section && !text.LinesOf(later).empty(); });
}

void RemoveWhatIsNotKnown(const DescriptionText& text, Findings& findings)
{
    for (const Lack& lack : lacks)
    {
        if (IsCutOff(text, lack.section))
            findings.Remove([&](const Finding& finding) { return finding.rule == &lack.rule.Get(); });
    }
}

// A word with a no-break space beside it is another word.
void RemoveWhatFollows(Findings& findings)
{
    const Rule* const cause = &RuleName("no-break-space").Get();
    std::set<int> lines;
    for (const Finding& finding : findings.All())
    {
        if (finding.rule == cause)
            lines.insert(finding.place.line);
    }
    findings.Remove([&](const Finding& finding)
                    { return finding.rule != cause && finding.path.empty() && lines.contains(finding.place.line); });
}

} // namespace

Surroundings SurroundingsOf(const std::string& folder, const std::vector<std::string>& partners)
{
    return {folder, std::make_shared<PartnerLibraries>(partners), LanguageFiles(PathOf(folder)), FolderTexts(folder)};
}

Finding& AddIn(const Case& judged, RuleName rule, const LanguageFile& file, const ClytSpan& place,
               const std::string& line, const std::string& message, const std::string& hint)
{
    Finding& finding = judged.findings.Add(rule, place, message, hint);
    finding.path = file.FileName();
    finding.line = line;
    return finding;
}

ClytSpan WholeLineOf(const LanguageKey& key)
{
    return {key.place.line, 0, static_cast<int>(key.line.size())};
}

const std::string& PathOf(const Finding& finding, const Description& description)
{
    return finding.path.empty() ? description.path : finding.path;
}

const std::string& LineOf(const Finding& finding, const Description& description)
{
    return finding.path.empty() ? description.text.Line(finding.place.line).text : finding.line;
}

namespace
{

Findings JudgeBy(const Description& description, const Surroundings& surroundings, bool isTried,
                 const GiveUpQuestion& isGivenUp)
{
    Findings findings;
    // Nothing in it is what the library would read.
    if (IsUtf16(description.text.Bytes()))
    {
        findings.Add("utf-16", {1, 0, 2}, "the file was saved as UTF-16, which the library cannot read", encodeAsAnsi)
            .number = lytError("VersionMissing");
        return findings;
    }
    for (const auto apply : families)
        apply({description, surroundings, findings});
    // Only what opens is tried, and not where a rule has said already what is wrong.
    if (isTried)
        ApplyTrialRules({description, surroundings, findings, isGivenUp});
    RemoveWhatIsNotKnown(description.text, findings);
    RemoveWhatFollows(findings);
    ApplyIgnores(description, findings);
    // Perhaps a trial finds what the remark silences.
    if (!isTried)
        findings.Remove([](const Finding& finding) { return finding.rule == &RuleName("ignore-unused").Get(); });
    findings.Sort();
    return findings;
}

} // namespace

Findings Judge(const Description& description, const Surroundings& surroundings, const GiveUpQuestion& isGivenUp)
{
    return JudgeBy(description, surroundings, true, isGivenUp);
}

Findings JudgeUntried(const Description& description, const Surroundings& surroundings)
{
    return JudgeBy(description, surroundings, false, {});
}

} // namespace lytdlg
