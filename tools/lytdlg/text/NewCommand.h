// `lytdlg new`: begins a dialog.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command NewCommand();

}
