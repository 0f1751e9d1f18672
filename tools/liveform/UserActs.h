// What a user does to the controls of a described dialog, and what is seen of them, however its window runs.
#pragma once

#include "model/ClytForm.h"

#include <vector>

enum class Entered
{
    Done,
    OutOfReach, // the control is disabled or hidden, or takes no value
    NotOffered, // no item or option has that value
    NotFocused  // a rule that the focus sets off on its way takes it elsewhere, where keys would go
};

// The control that has the focus; null when none of the form has it.
ClytControl* FocusedControl(const ClytForm& form);

// Enters a value: types it into a field, chooses the item or the option that has it, checks or unchecks a box. A button is
// pressed. What that sets off happens before the function returns.
Entered EnterAsUser(ClytControl& control, const CString& input);

// The buttons of an option group, in the order of the layout; none of another control.
std::vector<ClytControl*> OptionsOf(const ClytControl& control);
// An option group has no window; it is shown when one of its buttons is.
bool IsSeenEnabled(ClytControl& control);
bool IsSeen(ClytControl& control);
