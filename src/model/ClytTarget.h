// Where a scan goes on: the name of a statement, and the statement.
#pragma once

#include <afx.h>

class ClytDialogInput;

class ClytTarget : public CString
{
public:
    ClytTarget() = default;
    using CString::CString;
    ClytTarget(const CString& name) : CString(name) {} // NOLINT(google-explicit-constructor): a name is what is read

    // The part's. Null where the scan ends: for "End", for an unknown name, and before the part is bound.
    const ClytDialogInput* statement = nullptr;
};
