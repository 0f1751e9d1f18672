// A scan with the fill rules that its piece goes through.
#pragma once

#include "model/ClytConditionFill.h"
#include "model/ClytScan.h"

class ClytScanRule : public CObject
{
public:
    // Looks up the controls of the fill rules.
    void Bind(const ClytControlMap& controls);
    // Applies the fill rules in order. After a rule that does not hold the next one is left out: a conditional rule and
    // its successor are a pair.
    void ApplyFills(const CString& piece) const;

    ClytScan scan;
    ClytOwnedList<ClytConditionFill> rules;
};
