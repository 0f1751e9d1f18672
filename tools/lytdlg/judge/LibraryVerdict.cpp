#include "lytdlg/judge/Judge.h"

#include "commandline/Text.h"
#include "environment/ProcessState.h"
#include "liveform/LiveForm.h"
#include "lytdlg/judge/Families.h"
#include "lytdlg/judge/WithoutTexts.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/Words.h"
#include "lytdlg/try/Listener.h"
#include "robot/WindowRobot.h"

#include <algorithm>
#include <limits>

namespace lytdlg
{

namespace
{

Refusal RefusalOf(const CException& failure, int line)
{
    const auto* own = dynamic_cast<const ClytException*>(&failure);
    if (own == nullptr)
        return {"", lytMessageOf(failure).GetString(), "", line};
    return {own->GetNumber().GetString(), own->GetPrefix().IsKey() ? "" : own->GetPrefix().Get().GetString(),
            own->GetArgument().GetString(), line};
}

// The wording of a number in the first language that has it, with the argument after its first apostrophe.
std::string WordingOf(const Refusal& refusal, const LanguageFiles& texts)
{
    for (const std::string& language : texts.Languages())
    {
        if (refusal.number.empty() || !texts.Has(language, lytErrorSection, refusal.number))
            continue;
        std::string text = texts.Text(language, lytErrorSection, refusal.number);
        if (const size_t mark = text.find('\''); mark != std::string::npos)
            text.insert(mark + 1, refusal.argument);
        return refusal.words.empty() ? text : refusal.words + " " + text;
    }
    return refusal.words;
}

// A message with the number of a line belongs to that line, the others to the whole description.
bool StandsFor(const Finding& finding, const Refusal& refusal)
{
    const bool isOfLine =
        refusal.number.empty() || refusal.number == lytError("QuoteOpen") || refusal.number == lytError("LineForm");
    return finding.rule->level == Level::Error && finding.number == refusal.number &&
           (!isOfLine || finding.place.line == refusal.line);
}

} // namespace

std::optional<Refusal> RefusalOf(const Description& description)
{
    const FileForLibrary file(description.text.Bytes());
    const WithoutTexts noTexts(NameForLibrary(file.Name().parent_path() / "none"));
    // A list is given more items than it can lose; no library of another maker is loaded for a judgement.
    ItemsLibrary items([](const ClytControl&) { return std::vector<std::string>{"a", "b", "c", "d"}; });
    const Listener listener(items);
    robot::Robot user;
    user.AnswerAll(std::numeric_limits<int>::max());
    lytInputKey.Empty();
    LiveForm form(NameForLibrary(file.Name()).c_str(), Joined(description.text.Defines(), ",").c_str());
    try
    {
        form.Construct();
        return std::nullopt;
    }
    catch (CException* e)
    {
        const ClytCaught failure(e);
        return RefusalOf(*failure, form.GetReadPlace().line);
    }
}

void ApplyLibraryVerdict(const Case& judged)
{
    const std::optional<Refusal> refusal = RefusalOf(judged.description);
    if (!refusal)
        return;
    std::vector<Finding>& findings = judged.findings.All();
    if (std::ranges::any_of(findings, [&](const Finding& finding) { return StandsFor(finding, *refusal); }))
        return;
    const auto here = std::ranges::find_if(findings,
                                           [&](const Finding& finding) {
                                               return finding.rule->level == Level::Error && finding.number.empty() &&
                                                      finding.place.line == refusal->line;
                                           });
    if (here != findings.end())
    {
        here->number = refusal->number;
        return;
    }
    const std::string words = WordingOf(*refusal, judged.surroundings.texts);
    judged.findings
        .Add("refused", judged.description.PlaceOf(refusal->line),
             "the library refuses the description here" + (words.empty() ? "" : ": " + words),
             findings.empty() ? "" : "mend the findings above first")
        .number = refusal->number;
}

} // namespace lytdlg
