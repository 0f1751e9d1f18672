// Rules on the controls that the pieces of the input go to, and on the conditions that lead the way.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family FillRules();

} // namespace lytdlg
