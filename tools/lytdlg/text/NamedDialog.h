// Which of the dialogs that the library opens by name a description is.
#pragma once

#include "exports/NamedDialogs.h"

#include <string>

namespace lytdlg
{

// By its file, in any folder and in upper or lower case; null for any other.
const ClytNamedDialog* NamedDialogOf(const std::string& path);

} // namespace lytdlg
