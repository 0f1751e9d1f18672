// Rules on lines as such: their bytes, their length, the marks that switch them, and what stands after the end.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family LineRules();

} // namespace lytdlg
