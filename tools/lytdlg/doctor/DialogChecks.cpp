#include "lytdlg/doctor/Checks.h"

#include "commandline/Text.h"
#include "exports/NamedDialogs.h"
#include "lytdlg/judge/Judge.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>

namespace lytdlg
{

using commandline::ToUtf8;

namespace
{

constexpr const char* aboutDialogs = "dialogs";

void JudgeOpened(const std::filesystem::path& folder, Diagnosis& diagnosis)
{
    for (const ClytNamedDialog& opened : lytNamedDialogs)
    {
        if (FileIn(folder, opened.description).empty())
            diagnosis.Add(Verdict::Warning, aboutDialogs, folder / opened.description,
                          std::string("is not there, so that ") + opened.purpose + " does not open",
                          "copy it from the samples and change it, unless no macro asks for it");
    }
}

void JudgeReadable(const std::filesystem::path& folder, Diagnosis& diagnosis)
{
    for (const std::filesystem::path& file : FilesIn(folder, ".dlg"))
    {
        if (!ReadWholeFile(file))
            AddUnreadable(Verdict::Wrong, aboutDialogs, file, diagnosis);
    }
}

// The texts of the library are judged by themselves.
bool IsToldElsewhere(const Finding& finding)
{
    return finding.rule->level == Level::Note || finding.rule->id == "message-differs";
}

void JudgeDescription(const Description& description, const Surroundings& surroundings, Diagnosis& diagnosis)
{
    const Findings findings = Judge(description, surroundings);
    for (const Finding& finding : findings.All())
    {
        if (IsToldElsewhere(finding))
            continue;
        diagnosis.Add({finding.rule->level == Level::Error ? Verdict::Wrong : Verdict::Warning, aboutDialogs,
                       PathOf(finding, description), finding.place,
                       ToUtf8(finding.message) + " (" + finding.rule->id + ")", ToUtf8(finding.hint),
                       finding.rule->id});
    }
}

} // namespace

std::list<Description> ReadDescriptions(const Deployment& deployment)
{
    std::list<Description> descriptions;
    for (const std::filesystem::path& file : FilesIn(deployment.dialogs.chosen, ".dlg"))
    {
        if (const std::optional<std::string> bytes = ReadWholeFile(file))
            descriptions.emplace_back(file.string(), *bytes, deployment.defines);
    }
    return descriptions;
}

void JudgeDialogs(const Deployment& deployment, const std::list<Description>& descriptions, Diagnosis& diagnosis)
{
    const std::filesystem::path& folder = deployment.dialogs.chosen;
    if (descriptions.empty())
    {
        diagnosis.Add(Verdict::Wrong, aboutDialogs, folder, "there is no description (*.dlg) that can be read",
                      "copy the descriptions there, or name their folder with --dialogs");
        return;
    }
    for (const std::filesystem::path& other : deployment.dialogs.others)
        diagnosis.Add(Verdict::Warning, aboutDialogs, other,
                      "holds descriptions as well, and the macros may name either folder",
                      "remove it, or name the folder that is meant with --dialogs");
    JudgeOpened(folder, diagnosis);
    JudgeReadable(folder, diagnosis);
    const Surroundings surroundings = SurroundingsOf(folder.string(), {});
    const size_t before = diagnosis.All().size();
    for (const Description& description : descriptions)
        JudgeDescription(description, surroundings, diagnosis);
    if (diagnosis.All().size() == before)
        diagnosis.Add(Verdict::Good, aboutDialogs, folder,
                      Counted(descriptions.size(), "description", "descriptions") + ", in which `check` finds nothing");
}

} // namespace lytdlg
