// `check --against`: whether dialogs read texts as they did in another version of the library.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

// The record of a version is beside the dialogs, in a file with its number in its name: for each dialog some texts,
// what the controls show of each, and what is composed. Only the tool of that version writes it, with --update.
ExitCode CompareWithVersion(const Request& request);

} // namespace lytdlg
