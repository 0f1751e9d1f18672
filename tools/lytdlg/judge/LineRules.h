// Rules on lines as such: their bytes, their length, and what stands after the end.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family LineRules();

} // namespace lytdlg
