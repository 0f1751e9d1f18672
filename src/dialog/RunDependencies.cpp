// The runs of the dependency rules: one at the end of the construction, and one at each command.
#include "dialog/ClytDialog.h"

#include "base/ClytCounted.h"
#include "controls/ClytFocusKeeper.h"
#include "model/ClytObserver.h"

#include <afxwin.h>

#include <algorithm>
#include <list>
#include <optional>
#include <utility>

int lytControlsReady = 0;
int lytInputApplied = 0;

namespace
{

// How deep runs may be nested. The platform delivers some sixty nested messages, and drops further ones silently. A run
// takes at least two, and the dialogs below this one have taken some.
constexpr int deepestRun = 10;

// How many refused runs are repeated for one command of the user: rules may set each other off without end.
constexpr int mostRepeatedRuns = 1000;

// One pass over the rules.
struct Pass
{
    Pass(int& mark, POSITION firstRule) : held(mark), nextRule(firstRule) {}

    ClytCounted held; // the mark of the rule that set the pass off
    POSITION nextRule;
};

} // namespace

// A run of the rules, for as long as it lasts.
class ClytDialog::Run
{
public:
    explicit Run(ClytDialog& owner)
        : dialog(owner),
          outer(std::exchange(owner.innermostRun, this)),
          depth(outer != nullptr ? outer->depth + 1 : 1),
          readsBefore(owner.readDepth)
    {
        lytTell(&ClytObserver::RunBegan, depth);
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run()
    {
        dialog.innermostRun = outer;
        lytTell(&ClytObserver::RunEnded, depth);
    }

    // A read that was in progress when the run began does not count.
    bool IsReading() const { return dialog.readDepth > readsBefore; }
    // False when no further run may be nested in this one; the refusal is remembered.
    bool Admits()
    {
        hasRefused = depth >= deepestRun;
        return !hasRefused;
    }
    // True once after a run was refused, as long as it may still be repeated.
    bool TakeRefusal() { return std::exchange(hasRefused, false) && dialog.command.repeatedRuns++ < mostRepeatedRuns; }

private:
    ClytDialog& dialog;
    Run* outer; // outlives this one
    int depth;
    int readsBefore; // reads in progress when the run began
    bool hasRefused = false;
};

void ClytDialog::OnCommandBegun()
{
    command = {command.number + 1, 0, false, false, {}};
}

bool ClytDialog::CommandRunsRules()
{
    if (pausedRules != 0 || lytControlsReady == 0 || lytInputApplied == 0)
        return false;
    if (innermostRun == nullptr)
        return true;
    return !innermostRun->IsReading() && command.repeatedRuns <= mostRepeatedRuns && innermostRun->Admits();
}

bool ClytDialog::RunRules()
{
    const ClytCounted inCommand = BeginCommand();
    try
    {
        RunDependencies();
    }
    catch (...)
    {
        TellRuleFailure();
    }
    return !command.hasFailed;
}

// The message takes the focus and returns it, which is another command. The rules would fail in it again, without end:
// so none run until the message is closed.
void ClytDialog::TellRuleFailure() noexcept
{
    command.hasFailed = true;
    if (std::exchange(command.isTold, true))
    {
        DropCurrentFailure();
        return;
    }
    const ClytCounted pause = PauseRules();
    ReportCurrentFailure();
}

void ClytDialog::Report(const ClytControl& control, const char* number, const ClytPrefix& prefix,
                        const CString& argument)
{
    if (innermostRun != nullptr)
    {
        if (std::exchange(command.isTold, true))
            return;
        const ClytCounted pause = PauseRules();
        lytReport(number, prefix, argument);
        return;
    }
    if (scanDepth != 0)
    {
        const std::pair report(&control, number + argument);
        if (std::ranges::find(command.scanReports, report) != command.scanReports.end())
            return;
        command.scanReports.push_back(report);
    }
    lytReport(number, prefix, argument);
}

void ClytDialog::RunDependencies()
{
    if (isOver || pausedRules != 0)
        return;
    std::optional<ClytFocusKeeper> keeper;
    if (innermostRun == nullptr)
        keeper.emplace(*this);
    RunPasses();
}

// A refused run is repeated right after its rule, as a separate pass with its own baseline, and the rule keeps its mark
// until then. So the rules arrive at what runs that nest without a limit would give; only the stack does not grow.
void ClytDialog::RunPasses()
{
    Run run(*this);
    if (dependencyList.IsEmpty())
        return;
    int ownMark = 0;
    std::list<Pass> passes; // each set off by a rule of the one before
    passes.emplace_back(ownMark, dependencyList.GetHeadPosition());
    while (!passes.empty())
    {
        POSITION& nextRule = passes.back().nextRule;
        if (nextRule == nullptr)
        {
            // After a failure the changes remain, so that the next command tries the rule again.
            if (!command.hasFailed)
                SaveBaseline();
            passes.pop_back();
            continue;
        }
        ClytControlDep& rule = *dependencyList.GetNext(nextRule);
        TryRule(rule);
        if (run.TakeRefusal())
            passes.emplace_back(rule.runCount, dependencyList.GetHeadPosition());
    }
}

void ClytDialog::SaveBaseline()
{
    for (ClytControl* control : baselineControls)
        control->SaveState();
}

void ClytDialog::TryRule(ClytControlDep& rule)
{
    if (rule.failedIn == command.number)
        return;
    try
    {
        RunRule(rule);
    }
    catch (...)
    {
        rule.failedIn = command.number;
        throw;
    }
}

void ClytDialog::RunRule(ClytControlDep& rule)
{
    if (rule.IsEventRule())
    {
        RunEventRule(rule);
        return;
    }
    const int on = AllConditionsHold(rule);
    lytTell(&ClytObserver::StateSet, rule, on);
    rule.GetControl()->SetState(rule.stateWord, on);
}

// A rule's action sends commands, which start further runs inside this one. These leave out an event rule that is being
// carried out; otherwise a field that fills itself would never stop.
void ClytDialog::RunEventRule(ClytControlDep& rule)
{
    const bool isInProgress = rule.runCount != 0;
    const ClytCounted running(rule.runCount);
    const ClytEvent event = isInProgress             ? ClytEvent::InProgress
                            : rule.AnyChanged() != 0 ? ClytEvent::Acts
                                                     : ClytEvent::NothingChanged;
    lytTell(&ClytObserver::EventDecided, rule, event);
    if (event == ClytEvent::Acts)
        rule.GetControl()->DoAction(rule.stateWord);
}

int ClytDialog::AllConditionsHold(const ClytControlDep& rule)
{
    const ClytCounted read(readDepth);
    return rule.AllHold();
}
