// What a user does to a dialog: steps of the language of scripts, given as options or in files, carried out on the window
// on top.
#pragma once

#include "commandline/CommandLine.h"
#include "lytdlg/try/ControlState.h"
#include "script/Script.h"

#include <vector>

namespace lytdlg
{

// The options that are acts, and what a command lists of them in its form.
const std::vector<commandline::OptionForm>& ActOptions();
// Every act of the command line, in its order; the acts of a script come where the script is named.
std::vector<script::Step> ActsOf(const commandline::Request& request);

// The dialog is null when no description made the window on top. Raises UsageError for a name or a value that
// the dialog does not have, and ActError for what a user could not do.
void TakeAct(TrialDialog* dialog, const script::Step& act);

// The control that an act is about, by its name or as its window shows it, or null.
ClytControl* TargetOf(const TrialDialog& dialog, const script::Step& act);
// The control of that name; raises UsageError without one.
ClytControl& ControlNamed(const TrialDialog& dialog, const std::string& name, const std::string& place = "");
// What is seen of the control of that name; raises UsageError without one.
const ControlState& StateNamed(const DialogState& dialog, const std::string& name, const std::string& place);

} // namespace lytdlg
