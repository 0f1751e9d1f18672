// lytdlg why: tells why a control is hidden, disabled or empty.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command WhyCommand();

} // namespace lytdlg
