#include "lytdlg/try/TrialRun.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "environment/ClytEnvironment.h"
#include "lytdlg/Commands.h"

#include <algorithm>
#include <cstdio>

namespace lytdlg
{

using commandline::PrintText;
using commandline::ToUtf8;

namespace
{

// What a command shows after its acts is a described dialog.
void CheckDescribed(const Trial& running, const script::Step& act)
{
    const bool isOnOther = !running.Open().empty() && running.Top() == nullptr;
    if (isOnOther && act.word != "ok" && act.word != "cancel")
        throw ActError(act.place + "the window " + commandline::Quoted(ToUtf8(robot::TextOf(robot::ActiveDialog()))) +
                       " is no described dialog; end it with ok or cancel first");
}

void LookAtTop(const Trial& running, const TrialRun::Look& look)
{
    if (running.PresentEnding() == Ending::NotOpened)
        return;
    TrialDialog* top = running.Top();
    if (top == nullptr)
        throw ActError("no described dialog is left to look at; leave the last --ok, --cancel or --press out");
    look(*top);
}

} // namespace

const Outcome& TrialRun::Run(const std::vector<script::Step>& acts, const Look& look)
{
    std::deque<Trial::Step> steps;
    for (const script::Step& act : acts)
    {
        steps.emplace_back(
            [act, this](Trial& running)
            {
                if (traced)
                    events.push_back({EventKind::Trace, "> " + Describe(act)});
                CheckDescribed(running, act);
                running.Do(act);
            });
    }
    if (look)
        steps.emplace_back([&look](const Trial& running) { LookAtTop(running, look); });
    // What a dialog does while it is closed for want of further acts is nobody's concern.
    steps.emplace_back([this](Trial& /*trial*/) { recorder.EndTrace(); });
    return trial.Run(std::move(steps));
}

void TrialRun::PrintEvents() const
{
    for (const Event& event : events)
    {
        if (event.kind == EventKind::Message)
            PrintText("message", event.text);
        else
            commandline::PrintLine(event.text);
    }
}

int TrialRun::PrintFailure() const
{
    const Outcome& outcome = trial.Result();
    const std::string number = outcome.failureNumber.empty() ? "" : " " + outcome.failureNumber;
    std::printf("%s\n", WordOf(Ending::NotOpened));
    const std::string line = outcome.failureLine == 0 ? "" : " in line " + std::to_string(outcome.failureLine);
    PrintText("error" + number + line, outcome.failureMessage);
    return found;
}

DialogFacts FactsOf(const TrialDialog& dialog)
{
    return {dialog.DescriptionFile(), lytEnvironment.GetDialogDefine().GetString()};
}

void CheckKnown(const std::string& what, const std::string& name, const std::vector<std::string>& known)
{
    if (std::ranges::find(known, name) != known.end())
        return;
    std::vector<std::string> shown;
    std::ranges::transform(known, std::back_inserter(shown), ToUtf8);
    throw commandline::UsageError("the dialog has no " + what + " \"" + ToUtf8(name) + "\"; " +
                                  commandline::Suggestion(ToUtf8(name), shown));
}

} // namespace lytdlg
