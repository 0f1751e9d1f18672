// A scan with the fill rules that its piece goes through.
#pragma once

#include "model/ClytConditionFill.h"
#include "model/ClytScan.h"

class ClytScanRule : public CObject
{
public:
    // Applies the fill rules in order. A rule that does not hold takes the one behind it along: a conditional rule and
    // its successor are a pair.
    void ApplyFills(const CString& piece, const ClytControlMap& controls) const;

    ClytScan scan;
    ClytOwnedList<ClytConditionFill> rules;
};
