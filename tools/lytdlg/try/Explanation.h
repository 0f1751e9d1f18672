// Tells in plain sentences why a control of an open dialog is hidden, disabled or empty, or that it is not.
#pragma once

#include "lytdlg/try/DialogFacts.h"
#include "lytdlg/try/Recorder.h"
#include "lytdlg/try/TrialDialog.h"

#include <string>
#include <vector>

namespace lytdlg
{

// A line each, in UTF-8.
std::vector<std::string> Explain(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder);
// The part of it that is about the value: what filled and emptied the control, or why nothing did.
std::vector<std::string> ExplainValue(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder);

std::string InLine(int line);

} // namespace lytdlg
