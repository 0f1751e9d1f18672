#include "lytdlg/try/WhyCommand.h"

#include "lytdlg/try/Explanation.h"
#include "lytdlg/try/TakeAct.h"
#include "lytdlg/try/TrialRun.h"

#include <cstdio>

namespace lytdlg
{

namespace
{

ExitCode Why(const Request& request)
{
    TrialRun run(SetupOf(request), false);
    std::vector<std::string> lines;
    const auto explain = [&](Trial& trial)
    {
        // A dialog that does not open has nothing to explain.
        if (trial.PresentEnding() == Ending::NotOpened)
            return;
        const TrialDialog* dialog = trial.Top();
        if (dialog == nullptr)
            throw ActError("the dialog is closed before the question; leave the last --ok or --cancel out");
        lines = Explain(*dialog, ControlNamed(*dialog, AnsiOf(request.Operand(1, ""))), run.recorder);
    };
    if (run.Run(ActsOf(request), explain).ending == Ending::NotOpened)
        return static_cast<ExitCode>(run.PrintFailure());
    run.PrintEvents();
    for (const std::string& line : lines)
        std::printf("%s\n", line.c_str());
    return good;
}

} // namespace

Command WhyCommand()
{
    return {{"why", "DIALOG CONTROL", 2, 2, "tell why a control is hidden, disabled or empty", TrialOptions()}, Why};
}

} // namespace lytdlg
