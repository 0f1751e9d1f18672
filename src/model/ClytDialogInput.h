// One statement of an input part: a state of the scan. It cuts a piece off the input, or it only decides where the scan
// continues.
#pragma once

#include "model/ClytScanRule.h"

class ClytDialogInput : public CObject
{
public:
    // Looks up the controls of conditions and fills.
    void Bind(const ClytControlMap& controls);
    // 1 when any condition is satisfied, 0 without conditions.
    int ConditionsHold() const;

    CString name;
    ClytScanRule scanRule;
    ClytConditions conditions;
    ClytTarget trueTarget;
    ClytTarget falseTarget;
    ClytSpan span; // of the statement
};
