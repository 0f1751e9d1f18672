// A control's name with the values it may hold for a rule to apply: the condition that all rule kinds share.
#pragma once

#include <afxcoll.h>

#include "base/ClytOwnedList.h"
#include "base/ClytSpan.h"

class ClytControl;
using ClytControlMap = CTypedPtrMap<CMapStringToPtr, CString, ClytControl*>;

class ClytCtrlValList : public CObject
{
public:
    // Conditions are made at many places: the compiler would repeat these at each of them.
    ClytCtrlValList();
    explicit ClytCtrlValList(const CString& name, const ClytSpan& place = {});

    const CString& GetName() const { return controlName; }
    void SetName(const CString& name, const ClytSpan& place = {});
    // Where the name is in the description.
    const ClytSpan& GetSpan() const { return span; }
    CStringList& GetValues() { return values; }
    const CStringList& GetValues() const { return values; }
    // Looks the control up, once the values are there. A condition that is not bound counts as one on an unknown
    // control.
    void Bind(const ClytControlMap& controls);
    // Null for an unknown control.
    ClytControl* GetControl() const { return control; }
    // Whether the last value is "NOTNULL".
    bool AsksForContent() const { return asksForContent; }
    // Takes over another list's name, control and values as copies.
    void CopyFrom(const ClytCtrlValList& other);

    // 1 when a listed value equals the text byte for byte, or is "NULL" and the text is empty.
    int Contains(const CString& value) const;

private:
    CString controlName;
    ClytControl* control = nullptr; // the form's, which outlives its rules' use
    bool asksForContent = false;
    CStringList values;
    ClytSpan span;
};

// Conditions as a rule owns them, and as others may look at them.
using ClytConditions = ClytOwnedList<ClytCtrlValList>;

void lytBindConditions(const ClytConditions& conditions, const ClytControlMap& controls);
