// `check --against`: whether dialogs make the same of texts as they did in another version of the library.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

// What a version makes of the dialogs is beside them, in a file with its number in its name: for each dialog some texts,
// what the controls show of each, and what is composed. Only the tool of that version writes it, with --update.
ExitCode CompareWithVersion(const Request& request);

} // namespace lytdlg
