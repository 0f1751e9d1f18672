#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/try/Act.h"
#include "lytdlg/try/DialogFacts.h"
#include "lytdlg/try/TrialRun.h"

namespace lytdlg
{

namespace
{

ExitCode Why(const Request& request)
{
    TrialRun run(SetupOf(request), false);
    std::vector<Sentence> sentences;
    const auto explain = [&](const TrialDialog& dialog)
    { sentences = Explain(dialog, ControlNamed(dialog, commandline::AsAnsi(request.Operand(1, ""))), run.recorder); };
    if (run.Run(ActsOf(request), explain).ending == Ending::NotOpened)
        return static_cast<ExitCode>(run.PrintFailure());
    run.PrintEvents();
    for (const Sentence& sentence : sentences)
        commandline::PrintLine(sentence.text);
    return good;
}

} // namespace

Command WhyCommand()
{
    return {{"why", "DIALOG CONTROL", 2, 2, "explain why a control is hidden, disabled or empty", TrialOptions()}, Why};
}

} // namespace lytdlg
