// lytdlg run: opens a dialog, does what a user would do, and prints what it looks like and what comes out.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command RunCommand();

} // namespace lytdlg
