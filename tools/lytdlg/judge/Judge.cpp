#include "lytdlg/judge/Judge.h"

#include "lytdlg/judge/ActionRules.h"
#include "lytdlg/judge/ConditionRules.h"
#include "lytdlg/judge/ContentRules.h"
#include "lytdlg/judge/DependencyRules.h"
#include "lytdlg/judge/EvaluationRules.h"
#include "lytdlg/judge/FillRules.h"
#include "lytdlg/judge/FormatRules.h"
#include "lytdlg/judge/GeometryRules.h"
#include "lytdlg/judge/Ignores.h"
#include "lytdlg/judge/LanguageFileRules.h"
#include "lytdlg/judge/LayoutRules.h"
#include "lytdlg/judge/LibraryVerdict.h"
#include "lytdlg/judge/LineRules.h"
#include "lytdlg/judge/MarkRules.h"
#include "lytdlg/judge/MnemonicRules.h"
#include "lytdlg/judge/OutputGroupRules.h"
#include "lytdlg/judge/OutputRules.h"
#include "lytdlg/judge/PartnerRules.h"
#include "lytdlg/judge/ScanRules.h"
#include "lytdlg/judge/SectionRules.h"
#include "lytdlg/judge/SeparatorRules.h"
#include "lytdlg/judge/StatementRules.h"
#include "lytdlg/judge/TextRules.h"
#include "lytdlg/judge/ValueRules.h"
#include "lytdlg/judge/WordRules.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// A rule that tells of what a section does not say.
struct Lack
{
    Section section;
    const char* rule;
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
            findings.Remove([&](const Finding& finding) { return std::string(finding.rule->id) == lack.rule; });
    }
}

} // namespace

Surroundings SurroundingsOf(const std::string& folder, const std::vector<std::string>& partners)
{
    return {folder, std::make_shared<PartnerLibraries>(partners), LanguageFiles(PathOf(folder)), FolderTexts(folder)};
}

const std::string& PathOf(const Finding& finding, const Description& description)
{
    return finding.path.empty() ? description.path : finding.path;
}

const std::string& LineOf(const Finding& finding, const Description& description)
{
    return finding.path.empty() ? description.text.Line(finding.place.line).text : finding.line;
}

const std::vector<Family>& Families()
{
    // In the order of the sections. The library comes last: it looks whether a finding stands for its failure.
    static const std::vector<Family> families = {
        SectionRules(),     LineRules(),       MarkRules(),    StatementRules(),    WordRules(),
        LayoutRules(),      ValueRules(),      ContentRules(), ActionRules(),       DependencyRules(),
        ConditionRules(),   EvaluationRules(), ScanRules(),    SeparatorRules(),    FillRules(),
        OutputGroupRules(), OutputRules(),     FormatRules(),  LanguageFileRules(), TextRules(),
        MnemonicRules(),    GeometryRules(),   PartnerRules(), IgnoreRules(),       LibraryRules(),
    };
    return families;
}

const Rule* FindRule(const std::string& id)
{
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
        {
            if (id == rule->id)
                return rule;
        }
    }
    return nullptr;
}

std::vector<std::string> RuleNames()
{
    std::vector<std::string> names;
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
            names.emplace_back(rule->id);
    }
    return names;
}

Findings Judge(const Description& description, const Surroundings& surroundings)
{
    Findings findings;
    for (const Family& family : Families())
        family.judge({description, surroundings, findings});
    RemoveWhatIsNotKnown(description.text, findings);
    ApplyIgnores(description, findings);
    findings.Sort();
    return findings;
}

} // namespace lytdlg
