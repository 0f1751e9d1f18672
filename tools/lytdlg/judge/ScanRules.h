// Rules on the parts of the input and on how their statements lead to one another.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family ScanRules();

} // namespace lytdlg
