// `lytdlg texts`: what the language files of a folder hold and lack.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command TextsCommand();

}
