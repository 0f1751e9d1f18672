// lytdlg test: carries golden cases out and tells what differs.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command TestCommand();

} // namespace lytdlg
