// A fill rule of the scan: fills that apply to certain pieces only.
#pragma once

#include "model/ClytControlFill.h"

class ClytConditionFill : public CObject
{
public:
    void Bind(const ClytControlMap& controls);
    // 1 when the rule held for the piece and its fills were applied.
    int Apply(const CString& piece) const;

    ClytSpan span;      // of the rule's first word
    CStringList values; // the pieces for which the rule holds; empty means all
    ClytOwnedList<ClytControlFill> fills;

private:
    bool Holds(const CString& piece) const;
};
