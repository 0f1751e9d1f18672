// One output rule: the text that the dialog gives when the rule's conditions hold.
#pragma once

#include "model/ClytCtrlValList.h"

class ClytDialogOutput : public CObject
{
public:
    ClytConditions conditions;
    ClytSpan span; // of the statement
    CString format;
    CStringArray items;   // control names or literal texts
    CStringArray actions; // one an item: empty, "CONCAT" or the separators between the values of a list
};
