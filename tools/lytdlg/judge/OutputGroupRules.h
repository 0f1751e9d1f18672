// Rules on the groups of the output: their names, and who uses them.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family OutputGroupRules();

} // namespace lytdlg
