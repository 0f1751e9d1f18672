// How rules go through their conditions.
#pragma once

#include "model/ClytCtrlValList.h"
#include "model/ClytObserver.h"

// Tests one condition as a rule of that kind does.
ClytTested lytTest(const ClytCtrlValList& condition, ClytRuleKind kind);

// Goes through the conditions of the rule at that place until one decides, and reports each that was tested.
bool lytConditionsHold(const ClytConditions& conditions, ClytRuleKind kind, const ClytSpan& rule);
