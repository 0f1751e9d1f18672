// Rules on the output: its groups, the conditions of its rules, and what their items stand for.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family OutputRules();

} // namespace lytdlg
