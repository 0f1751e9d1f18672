// Rules on the statements of $VALUES: whom they name, what they say, and the values that lists, options and check boxes
// get.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family ValueRules();

} // namespace lytdlg
