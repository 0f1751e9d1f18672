// The combination of values that a control's evaluation statement forbids; without own values there is none.
#pragma once

#include "model/ClytCtrlValList.h"

class ClytControlEval : public CObject
{
public:
    ClytCtrlValList ownValues;
    ClytCtrlValList otherValues; // its name is the other control's
    CString messageKey;
};
