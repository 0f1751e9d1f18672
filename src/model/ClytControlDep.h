// A dependency rule: which state of which control follows from a list of conditions.
#pragma once

#include "model/ClytCtrlValList.h"
#include "model/ClytWords.h"

class ClytControlDep : public CObject
{
public:
    // Looks up the rule's control and the controls of its conditions.
    void Bind(const ClytControlMap& controls);
    // Null before the rule is bound, and for an unknown control.
    ClytControl* GetControl() const { return control; }
    // An event rule acts when a control of its conditions changed; any other rule sets a state in every run.
    bool IsEventRule() const;
    // 1 when every condition holds. An inactive control fails its condition unless it is exempt; "NOTNULL" as a
    // condition's last value ends the test with whether that control holds anything.
    int AllHold() const;
    // 1 when the control of a condition changed; an unknown control ends the test with 0.
    int AnyChanged() const;

    CString controlName; // the control that the rule acts on
    ClytStateWord stateWord;
    ClytConditions conditions;
    ClytSpan span;    // of the statement
    int runCount = 0; // above 0 while the rule is being carried out; an event rule is not entered again then
    int failedIn = 0; // the number of the user's command in which the rule has failed; 0 for none

private:
    ClytControl* control = nullptr; // the form's, which outlives the rule's use
};
