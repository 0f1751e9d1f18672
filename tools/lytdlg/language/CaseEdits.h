// What a user has done to a dialog, and what came of it, as a golden case.
#pragma once

#include "lytdlg/language/Edits.h"
#include "lytdlg/language/PlayedTrial.h"

namespace lytdlg
{

// The case at the end of the last file of cases of the dialog, or in a file that is not there yet: in the folder `cases` beside
// that of the dialogs where there is one, else beside the dialog.
EditsByPath AddedCase(const Workspace& workspace, const Play& play, const std::string& name);

} // namespace lytdlg
