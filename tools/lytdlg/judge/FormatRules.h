// Rules on the formats of the output and on the items that they take.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family FormatRules();

} // namespace lytdlg
