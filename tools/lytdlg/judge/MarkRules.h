// Rules on the marks that switch lines on and off by a define.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family MarkRules();

} // namespace lytdlg
