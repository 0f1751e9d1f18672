// One output rule: the text that the dialog gives when the rule's conditions hold.
#pragma once

#include "model/ClytCtrlValList.h"

#include <vector>

struct ClytOutputItem
{
    CString text;                   // a control's name, or a literal text
    CString action;                 // empty, "CONCAT" or the separators between the values of a list
    ClytSpan span;                  // of the text
    ClytControl* control = nullptr; // the form's, which outlives the rule's use; null for a literal text
};

class ClytDialogOutput : public CObject
{
public:
    // Looks up the controls of conditions and items.
    void Bind(const ClytControlMap& controls);

    ClytConditions conditions;
    ClytSpan span; // of the statement
    CString format;
    std::vector<ClytOutputItem> items;
};

// A named group of output rules, tried in file order.
class ClytOutput : public CObject
{
public:
    ClytOwnedList<ClytDialogOutput> rules;
    ClytSpan span; // of the header
};
