// `lytdlg fmt`: brings descriptions into their one form.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command FmtCommand();

}
