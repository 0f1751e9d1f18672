// Remarks at the end of a line that silence a rule there:
//
//     Rate = 60   ; lytdlg: ignore value-not-in-list the list is filled later
//
// A reason must follow the rule's name. Errors are not silenced, since the library refuses the file all the same.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family IgnoreRules();

// Takes away what the remarks silence, and adds what is wrong with the remarks themselves.
void ApplyIgnores(const Description& description, Findings& findings);

} // namespace lytdlg
