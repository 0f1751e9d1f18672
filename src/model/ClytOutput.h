// A named group of output rules, tried in file order.
#pragma once

#include "model/ClytDialogOutput.h"

class ClytOutput : public CObject
{
public:
    ClytOwnedList<ClytDialogOutput> rules;
    ClytSpan span; // of the header
};
