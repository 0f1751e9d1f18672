// Rules on the conditions of $DEPENDANCES.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family ConditionRules();

} // namespace lytdlg
