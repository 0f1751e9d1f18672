#include "lytdlg/try/RunCommand.h"

#include "commandline/Text.h"
#include "lytdlg/try/Listener.h"
#include "lytdlg/try/Trial.h"

#include <cstdio>

namespace lytdlg
{

using commandline::PrintText;

namespace
{

void Print(const Event& event)
{
    if (event.isMessage)
        PrintText("message", event.text);
    else
        std::printf("%s\n", commandline::ToUtf8(event.text).c_str());
}

int PrintOutcome(const Trial& trial)
{
    const Outcome& outcome = trial.Result();
    for (const DialogState& state : outcome.states)
        std::fputs(Describe(state).c_str(), stdout);
    for (const Event& event : trial.Events())
        Print(event);
    std::printf("%s\n", WordOf(outcome.ending));
    if (outcome.ending == Ending::Confirmed)
        PrintText("result", outcome.text);
    if (outcome.ending == Ending::NotOpened)
        PrintText("error " + outcome.failureNumber, outcome.failureMessage);
    return outcome.ending == Ending::NotOpened || outcome.ending == Ending::Refused ? found : good;
}

ExitCode RunTrial(const Request& request)
{
    const Setup setup = SetupOf(request);
    std::deque<Trial::Step> steps;
    for (const Act& act : ActsOf(request))
        steps.emplace_back([act](Trial& trial) { trial.Do(act); });
    ItemsLibrary items(setup.items);
    const Listener listener(items);
    Trial trial(setup, items);
    trial.Run(std::move(steps));
    return static_cast<ExitCode>(PrintOutcome(trial));
}

} // namespace

Command RunCommand()
{
    return {{"run", "DIALOG", 1, 1, "open a dialog, act on it in the order of the options, and print it",
             TrialOptions({{"--trace", nullptr, false, "print each step of scan, rules and output"}})},
            RunTrial};
}

} // namespace lytdlg
