// Puts a piece of the input into a control.
#pragma once

#include "model/ClytCtrlValList.h"
#include "model/ClytWords.h"

#include <array>

class ClytControlFill : public CObject
{
public:
    void Bind(const ClytControlMap& controls);
    // An unknown control is ignored.
    void Apply(const CString& piece) const;
    // Null for an unknown control.
    ClytControl* GetControl() const { return control; }

    CString controlName;
    ClytSpan span;                   // of the control name
    CString value;                   // replaces the piece when it is not empty
    ClytFillWord action;             // any other word sets the value
    std::array<CString, 3> operands; // joined, the separators of "CONCAT"

private:
    ClytControl* control = nullptr; // the form's, which outlives the fill's use
};
