// Is notified of what a dialog does silently: what it ignores, how it scans its input, runs its rules and chooses its
// output, and which names it cannot find. The library has no listener, and each report then costs the test of a pointer.
// A tool sets one while it works.
#pragma once

#include "base/ClytSpan.h"

#include <afx.h>

class ClytControl;
class ClytControlDep;
class ClytControlFill;
class ClytCtrlValList;
class ClytDialogInput;
class ClytDialogOutput;

// What is ignored in a description because a word or name in it is unknown.
enum class ClytPassedOver
{
    LayoutStatement, // its type word names no control
    ValueStatement,
    DependencyRule, // its conditions go to the next rule that is stored
    Evaluation,
    Fill
};

// What has conditions.
enum class ClytRuleKind
{
    State,
    Event,
    Output,
    Input
};

// The result of a condition's test.
enum class ClytTested
{
    Holds,
    UnknownControl, // a state rule ignores the condition, an event rule ends with it, an output rule raises 245
    Inactive,
    NotListed,
    HasContent, // "NOTNULL" decided: the rule holds, and later conditions are ignored
    IsEmpty,    // "NOTNULL" decided: the rule does not hold
    Changed,
    Unchanged
};

// What an event rule did.
enum class ClytEvent
{
    Acts,
    NothingChanged,
    InProgress // a run inside its own action leaves it out
};

// What a dialog at work could not find.
enum class ClytMissing
{
    ButtonTarget,
    DoubleClickTarget,
    NestedDialog, // it exists, but its output rule composed nothing for it, and so it does not open
    OutputGroup,
    InputPart,
    InputStatement, // a scan ends there
    Library,
    LibraryFunction
};

// A listener overrides the reports that it wants. It throws nothing and does not change the dialog.
class ClytObserver
{
public:
    virtual void PassedOver(ClytPassedOver /*what*/, const CString& /*name*/, const ClytSpan& /*place*/) {}
    // The control that looked for it is null where the dialog itself did, or where it is not known. The place is that of
    // the statement that names it, and no place where that is not known.
    virtual void Missed(ClytMissing /*what*/, const CString& /*name*/, const ClytControl* /*control*/,
                        const ClytSpan& /*place*/)
    {
    }

    // A run of an input part over a text. The rests that are reported until it ends point into it.
    virtual void ScanBegan(const char* /*text*/) {}
    // A statement cut a piece off the input; `rest` is what follows it.
    virtual void Cut(const ClytDialogInput& /*statement*/, const CString& /*piece*/, const char* /*rest*/,
                     const CString& /*nextStatement*/)
    {
    }
    // A statement without a scan decided where the run continues.
    virtual void Jumped(const ClytDialogInput& /*statement*/, const CString& /*nextStatement*/) {}
    // A fill rule put a text into its control.
    virtual void Filled(const ClytControlFill& /*fill*/, const CString& /*piece*/) {}

    // A control is about to be filled by its library; its list is still as it was.
    virtual void LibraryAsked(const ClytControl& /*control*/) {}

    // A run of the rules; the depth counts nested runs from 1. It ends on every way out.
    virtual void RunBegan(int /*depth*/) {}
    virtual void RunEnded(int /*depth*/) {}
    // The tested conditions of a rule are reported in their order, and then what the rule does, before it does it: that
    // may begin a run inside this one.
    virtual void ConditionTested(ClytRuleKind /*kind*/, const ClytSpan& /*rule*/, const ClytCtrlValList& /*condition*/,
                                 ClytTested /*result*/)
    {
    }
    virtual void StateSet(const ClytControlDep& /*rule*/, int /*on*/) {}
    virtual void EventDecided(const ClytControlDep& /*rule*/, ClytEvent /*event*/) {}

    // Null when no rule of the group holds.
    virtual void OutputChosen(const ClytDialogOutput* /*rule*/) {}

protected:
    ~ClytObserver() = default;
};

inline ClytObserver* lytObserver = nullptr; // outlives what it listens to

// Notifies the listener, if there is one.
template <class... PARAMETERS, class... ARGUMENTS>
void lytTell(void (ClytObserver::*what)(PARAMETERS...), const ARGUMENTS&... arguments)
{
    if (lytObserver != nullptr)
        (lytObserver->*what)(arguments...);
}
inline void lytTellMissing(ClytMissing what, const CString& name, const ClytControl* control = nullptr,
                           const ClytSpan& place = {})
{
    lytTell(&ClytObserver::Missed, what, name, control, place);
}
