// A report without the names of people and machines.
#pragma once

#include "lytcall/ReportText.h"

namespace lytcall
{

// Replaces the name of the user by USER, that of the machine by MACHINE, those of servers, domains and other users' folders
// by SERVER1, DOMAIN1, USER1 ..., and addresses likewise, each as a whole word, in capitals or not. The same
// name is replaced by the same word. Values that are secrets by their names become REMOVED. Names are learnt from the lines
// themselves and from those that are told besides. All lines are in UTF-8.
ReportLines Redacted(ReportLines lines, const ReportLines& told = {});

} // namespace lytcall
