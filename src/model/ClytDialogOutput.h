// One output rule: the text that the dialog gives when the rule's conditions hold.
#pragma once

#include "model/ClytCtrlValList.h"

#include <vector>

class ClytDialogOutput : public CObject
{
public:
    // Looks up the controls of conditions and items.
    void Bind(const ClytControlMap& controls);
    // The control that an item names; null for a literal text.
    ClytControl* GetItemControl(int index) const { return itemControls[static_cast<size_t>(index)]; }

    ClytConditions conditions;
    ClytSpan span; // of the statement
    CString format;
    CStringArray items;   // control names or literal texts
    CStringArray actions; // one an item: empty, "CONCAT" or the separators between the values of a list

private:
    std::vector<ClytControl*> itemControls; // the form's, which outlive the rule's use
};
