// Rules on the rules of the output: their order and conditions, and what their items stand for.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family OutputRules();

} // namespace lytdlg
