#include "lytdlg/Commands.h"

#include "commandline/CommandLine.h"
#include "lytdlg/doctor/Checks.h"

#include <algorithm>
#include <cstdint>

namespace lytdlg
{

namespace
{

Diagnosis Examine(const Deployment& deployment)
{
    Diagnosis diagnosis;
    const Configuration configuration(deployment.configuration.chosen);
    const std::list<Description> descriptions = ReadDescriptions(deployment);
    JudgeLibrary(deployment, diagnosis);
    JudgeHost(deployment.host, diagnosis);
    JudgeLoading(deployment, configuration, diagnosis);
    JudgeConfiguration(deployment, configuration, diagnosis);
    JudgeLog(deployment, configuration, diagnosis);
    JudgeTexts(deployment, configuration, diagnosis);
    JudgeFonts(deployment, configuration, diagnosis);
    JudgeNames(deployment, diagnosis);
    JudgeDialogs(deployment, descriptions, diagnosis);
    const std::vector<std::filesystem::path> partners = JudgePartners(deployment, descriptions, diagnosis);
    JudgeScreen(deployment, diagnosis);
    JudgeMarks(deployment, partners, diagnosis);
    return diagnosis;
}

ExitCode Doctor(const Request& request)
{
    const std::string format = request.Text("--format", "text");
    const std::vector<std::string> formats = {"text", "json"};
    if (std::ranges::find(formats, format) == formats.end())
        throw commandline::UsageError("there is no format \"" + format + "\"; " +
                                      commandline::Suggestion(format, formats));
    const Diagnosis diagnosis = Examine(FindDeployment(request));
    format == "json" ? PrintAsJson(diagnosis) : PrintAsText(diagnosis);
    return diagnosis.Worst() > Verdict::Note ? found : good;
}

} // namespace

Command DoctorCommand()
{
    return {
        {"doctor",
         "FOLDER...",
         1,
         SIZE_MAX,
         "check a deployment: the library, lyt.ini, texts, dialogs and partner libraries in these folders",
         {{"--format", "FORMAT", false, "text (default) or json"},
          {"--library", "FILE", false, "the library, when the folders hold several or none"},
          {"--init", "FOLDER", false, "the folder of lyt.ini, likewise"},
          {"--dialogs", "FOLDER", false, "the folder of the descriptions, likewise"},
          {"--document", "FILE", false, "a document: check that its log can be written"},
          {"--define", "WORD", false, "read the lines that this define switches on; may be given more than once"},
          {"--host", "FILE", false, "the word processor's program (default on Windows: the one that is registered)"},
          {"--partners", "FOLDER", false,
           "a folder that Windows searches after that of the host, in place of this machine's folders; "
           "may be given more than once"}}},
        Doctor};
}

} // namespace lytdlg
