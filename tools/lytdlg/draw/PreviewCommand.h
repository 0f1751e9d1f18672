// preview: a picture of a dialog as it would stand on the screen, or of all dialogs of a folder.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command PreviewCommand();

} // namespace lytdlg
