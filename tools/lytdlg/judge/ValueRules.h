// Rules on the statements of $VALUES: whom they name, and what they say.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family ValueRules();

} // namespace lytdlg
