// preview: a drawing of a dialog as it would appear on the screen.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command PreviewCommand();

} // namespace lytdlg
