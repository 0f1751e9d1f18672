// The runs of the dependency rules: one at the end of the construction, and one at each command.
#include "dialog/ClytDialog.h"

#include "base/Counted.h"
#include "model/ClytObserver.h"

#include <list>
#include <utility>

int lytControlsReady = 0;
int lytInputApplied = 0;

namespace
{

// How deep runs may be nested. The platform delivers some sixty messages one inside the other and drops any beyond
// that without a word. A run takes two of them or more, and the dialogs below this one have had theirs.
constexpr int deepestRun = 10;

// How many runs the innermost one makes up for, so that rules that set each other off come to an end.
constexpr int mostMadeUpRuns = 1000;

// One pass over the rules.
struct Pass
{
    Pass(int& mark, POSITION firstRule) : held(mark), nextRule(firstRule) {}

    Counted held; // the mark of the rule that set the pass off
    POSITION nextRule;
};

} // namespace

// A run of the rules, for as long as it lasts.
class ClytDialog::Run
{
public:
    explicit Run(ClytDialog& owner)
        : m_owner(owner),
          m_outer(std::exchange(owner.innermostRun, this)),
          m_depth(m_outer != nullptr ? m_outer->m_depth + 1 : 1),
          m_readsBefore(owner.readDepth)
    {
        if (lytObserver != nullptr)
            lytObserver->RunBegan(m_depth);
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run()
    {
        m_owner.innermostRun = m_outer;
        if (lytObserver != nullptr)
            lytObserver->RunEnded(m_depth);
    }

    // A value that was being read when the run began is not this run's concern.
    bool IsReading() const { return m_owner.readDepth > m_readsBefore; }
    // False when no run fits inside this one; the one that wanted to is remembered.
    bool Admits()
    {
        m_hasRefused = m_depth >= deepestRun;
        return !m_hasRefused;
    }
    // True once after a run was refused, as long as it may still be made up for.
    bool TakeRefusal() { return std::exchange(m_hasRefused, false) && m_madeUp++ < mostMadeUpRuns; }

private:
    ClytDialog& m_owner;
    Run* m_outer; // lives longer
    int m_depth;
    int m_readsBefore; // reads in progress when the run began
    int m_madeUp = 0;
    bool m_hasRefused = false;
};

bool ClytDialog::MayRunRules()
{
    if (lytControlsReady == 0 || lytInputApplied == 0 || toldFailures != 0)
        return false;
    return innermostRun == nullptr || (!innermostRun->IsReading() && innermostRun->Admits());
}

// A run that was refused is made up for as soon as its rule has acted, by a pass of its own with a baseline of its own,
// and the rule keeps its mark until then. So the rules come to what they would come to if runs nested without a limit;
// only the stack stays as it is.
void ClytDialog::RunRules()
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
            SaveBaseline();
            passes.pop_back();
            continue;
        }
        ClytControlDep& rule = *dependencyList.GetNext(nextRule);
        RunRule(rule);
        if (run.TakeRefusal())
            passes.emplace_back(rule.runCount, dependencyList.GetHeadPosition());
    }
}

void ClytDialog::SaveBaseline()
{
    for (ClytControl* control : baselineControls)
        control->SaveState();
}

void ClytDialog::RunRule(ClytControlDep& rule)
{
    if (rule.IsEventRule())
    {
        RunEventRule(rule);
        return;
    }
    const int on = AllConditionsHold(rule);
    if (lytObserver != nullptr)
        lytObserver->StateSet(rule, on);
    rule.GetControl()->SetState(rule.stateWord, on);
}

// What a rule does to its control sends commands, and so further runs take place inside this one. An event rule that
// is being carried out is left out of them, or a field that fills itself would never come to an end.
void ClytDialog::RunEventRule(ClytControlDep& rule)
{
    const bool isInProgress = rule.runCount != 0;
    const Counted running(rule.runCount);
    const ClytEvent event = isInProgress             ? ClytEvent::InProgress
                            : rule.AnyChanged() != 0 ? ClytEvent::Acts
                                                     : ClytEvent::NothingChanged;
    if (lytObserver != nullptr)
        lytObserver->EventDecided(rule, event);
    if (event == ClytEvent::Acts)
        rule.GetControl()->DoAction(rule.stateWord);
}

int ClytDialog::AllConditionsHold(const ClytControlDep& rule)
{
    const Counted read(readDepth);
    return rule.AllHold() != 0 ? 1 : 0;
}
