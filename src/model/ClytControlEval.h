// The combination of values that a control's evaluation statement forbids. Without own values nothing is forbidden.
#pragma once

#include "model/ClytCtrlValList.h"

class ClytControlEval : public CObject
{
public:
    ClytCtrlValList ownValues;
    ClytCtrlValList otherValues; // its name is the other control's
    CString messageKey;
};
