// Rules on the checks that are made before OK.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family EvaluationRules();

} // namespace lytdlg
