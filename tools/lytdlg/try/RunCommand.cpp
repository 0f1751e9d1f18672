#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/try/TrialRun.h"

#include <cstdio>

namespace lytdlg
{

namespace
{

ExitCode RunDialog(const Request& request)
{
    TrialRun run(SetupOf(request), request.Has("--trace"));
    const Outcome& outcome = run.Run(ActsOf(request));
    for (const DialogState& state : outcome.states)
        std::fputs(Describe(state).c_str(), stdout);
    run.PrintEvents();
    for (const std::string& control : run.items.Unused())
        commandline::PrintLine("nothing asked for the items of " + commandline::ToUtf8(control));
    if (outcome.ending == Ending::NotOpened)
        return static_cast<ExitCode>(run.PrintFailure());
    std::printf("%s\n", WordOf(outcome.ending));
    if (outcome.ending == Ending::Confirmed)
        commandline::PrintText("result", outcome.text);
    return outcome.ending == Ending::Refused ? found : good;
}

} // namespace

Command RunCommand()
{
    return {{"run", "DIALOG", 1, 1, "open a dialog, act on it in the order of the options, and print it",
             TrialOptions({{"--trace", nullptr, false, "print each step of scan, rules and output"}})},
            RunDialog};
}

} // namespace lytdlg
