// A report without the names of people and machines.
#pragma once

#include "lytcall/ReportText.h"

namespace lytcall
{

// Replaces the name of the user by USER, that of the machine by MACHINE, those of servers and of other users' folders by
// SERVER1, SERVER2 ... and USER1, USER2 ..., each wherever it stands as a word of its own, in capitals or not. The same
// name is replaced by the same word.
ReportLines Redacted(ReportLines lines);

} // namespace lytcall
