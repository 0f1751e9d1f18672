// A transcript: stages, what is done on them, and what came of it. The first two are read from it.
//
//     ## Edits                     a dialog with that title
//     : edit 10                    what is on it, and what else is arranged before it opens
//     # focus 10; type Abc -- why  what is done next, all at once
//
// All other lines are the record of the messages.
#pragma once

#include <string>

// Works the stages, or the one with that title, and prints the transcript again. Raises std::runtime_error for what it
// does not know.
void WorkTranscript(const std::string& path, const std::string& title);
