#include "dialog/ClytDialogRules.h"

#include "base/Counted.h"
#include "base/Words.h"
#include "environment/ClytException.h"
#include "environment/ProcessState.h"
#include "model/ClytObserver.h"

#include <list>
#include <utility>

int lytControlsReady = 0;
int lytInputApplied = 0;

namespace
{

// How many runs may stand one inside the other. The platform delivers some sixty messages one inside the other and drops
// what goes beyond without a word. A run takes two of them or more, and the dialogs below this one have had theirs.
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
class ClytDialogRules::Run
{
public:
    explicit Run(ClytDialogRules& owner)
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
    ClytDialogRules& m_owner;
    Run* m_outer; // lives longer
    int m_depth;
    int m_readsBefore; // reads in progress when the run began
    int m_madeUp = 0;
    bool m_hasRefused = false;
};

ClytDialogRules::ClytDialogRules(CString descriptionFile, const CString& defineList)
    : file(defineList), fileName(std::move(descriptionFile))
{
    lytTreeConfirmCount = 0;
}

// Controls may look at rules, groups and parts as they go, so they go first, and the maps that name them last.
ClytDialogRules::~ClytDialogRules()
{
    controlList.RemoveAll();
    sectionList.RemoveAll();
    dependencyList.RemoveAll();
    outputList.RemoveAll();
    inputList.RemoveAll();
    controlMap.RemoveAll();
    outputMap.RemoveAll();
}

CString ClytDialogRules::GetTextSection() const
{
    return sectionList.IsEmpty() ? CString() : sectionList.GetHead();
}

ClytControl* ClytDialogRules::FindControl(const CString& name) const
{
    ClytControl* control = nullptr;
    controlMap.Lookup(name, control);
    return control;
}

bool ClytDialogRules::MayRunRules()
{
    if (lytControlsReady == 0 || lytInputApplied == 0)
        return false;
    return innermostRun == nullptr || (!innermostRun->IsReading() && innermostRun->Admits());
}

// A run that was refused is made up for as soon as its rule has acted, by a pass of its own with a baseline of its own,
// and the rule keeps its mark as long. So the rules come to what they would come to if runs nested without a limit; only
// the stack stays as it is.
void ClytDialogRules::RunDependencies()
{
    Run run(*this);
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

void ClytDialogRules::SaveBaseline()
{
    for (POSITION place = dependencyList.GetHeadPosition(); place != nullptr;)
        dependencyList.GetNext(place)->SaveStates();
}

void ClytDialogRules::RunRule(ClytControlDep& rule)
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
void ClytDialogRules::RunEventRule(ClytControlDep& rule)
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

int ClytDialogRules::AllConditionsHold(const ClytControlDep& rule)
{
    const Counted read(readDepth);
    return rule.AllHold() != 0 ? 1 : 0;
}

void ClytDialogRules::ApplyInput(const CString& partName)
{
    ClytInputPart* part = nullptr;
    if (!inputMap.Lookup(partName, part))
        lytRaise("217", CString(), partName);
    part->Run(lytInputKey, lytStartName);
    // Emptied, so that no nested dialog scans the same text.
    lytInputKey.Empty();
    for (POSITION place = controlList.GetHeadPosition(); place != nullptr;)
        controlList.GetNext(place)->SaveState();
}

int ClytDialogRules::RunInput(const CString& partName, const CString& text)
{
    ClytInputPart* part = nullptr;
    if (!inputMap.Lookup(partName, part))
    {
        lytTellMissing(ClytMissing::InputPart, partName);
        return 0;
    }
    part->Run(text, lytStartName);
    return 1;
}

const ClytControlDep* ClytDialogRules::FindDefaultButtonRule(const CString& focusName) const
{
    for (POSITION place = dependencyList.GetHeadPosition(); place != nullptr;)
    {
        const ClytControlDep* rule = dependencyList.GetNext(place);
        if (rule->stateWord.GetMeaning() != ClytState::DefButton)
            continue;
        for (POSITION at = rule->conditions.GetHeadPosition(); at != nullptr;)
        {
            if (rule->conditions.GetNext(at)->GetName() == focusName)
                return rule;
        }
    }
    return nullptr;
}

int ClytDialogRules::ComposeResult()
{
    lytTreeConfirmCount = 0;
    ClytOutput* group = nullptr;
    if (!outputMap.Lookup(lytParentName, group))
    {
        lytTellMissing(ClytMissing::OutputGroup, lytParentName);
        return 0;
    }
    try
    {
        return ComposeOutput(*group, result, 1);
    }
    catch (ClytException* e)
    {
        const ClytCaught failure(e);
        char message[255] = "";
        failure->GetErrorMessage(message, sizeof message);
        lytRaise("246", message);
    }
}
