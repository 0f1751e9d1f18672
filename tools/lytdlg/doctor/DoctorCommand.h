// The command that judges a deployment.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command DoctorCommand();

} // namespace lytdlg
