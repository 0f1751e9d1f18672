// Where a scan continues: the name of a statement, and the statement.
#pragma once

#include <afx.h>

class ClytDialogInput;

struct ClytTarget
{
    CString name;
    // The part's. Null where the scan ends: for "End", for an unknown name, and before the part is bound.
    const ClytDialogInput* statement = nullptr;
};
