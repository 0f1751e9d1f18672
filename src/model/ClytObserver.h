// Listens to what a dialog does without a word: what it passes over, how it scans its input. The library has no
// listener, and then each of these places costs a test of one pointer; a tool sets one while it works.
#pragma once

#include "base/ClytSpan.h"

#include <afx.h>

class ClytControlFill;
class ClytDialogInput;

// What of a description is passed over because a word or name in it is unknown.
enum class ClytPassedOver
{
    LayoutStatement, // its type word stands for no control
    ValueStatement,
    DependencyRule, // its conditions go to the next rule that is stored
    Evaluation,
    Fill
};

class ClytObserver
{
public:
    virtual void PassedOver(ClytPassedOver what, const CString& name, const ClytSpan& place) = 0;
    // A statement cut a piece off the input; `rest` is what follows it.
    virtual void Cut(const ClytDialogInput& statement, const CString& piece, const char* rest,
                     const CString& nextStatement) = 0;
    // A statement without a scan decided where the run goes on.
    virtual void Jumped(const ClytDialogInput& statement, const CString& nextStatement) = 0;
    // A fill rule put a text into its control.
    virtual void Filled(const ClytControlFill& fill, const CString& piece) = 0;

protected:
    ~ClytObserver() = default;
};

inline ClytObserver* lytObserver = nullptr; // outlives what it listens to
