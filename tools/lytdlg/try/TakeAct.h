// Carries an act out on the window on top.
#pragma once

#include "lytdlg/try/Act.h"
#include "lytdlg/try/ControlState.h"

namespace lytdlg
{

// The dialog is null when the window on top is none that a description makes. Raises UsageError for a name or a value that
// the dialog does not have, and ActError for what a user could not do.
void TakeAct(TrialDialog* dialog, const script::Step& act);

// The control that an act is about, by its name or as its window shows it; null when there is none.
ClytControl* TargetOf(const TrialDialog& dialog, const script::Step& act);
// The control of that name; raises UsageError when there is none.
ClytControl& ControlNamed(const TrialDialog& dialog, const std::string& name, const std::string& place = "");
// What is seen of the control of that name; raises UsageError when there is none.
const ControlState& StateNamed(const DialogState& dialog, const std::string& name, const std::string& place);

} // namespace lytdlg
