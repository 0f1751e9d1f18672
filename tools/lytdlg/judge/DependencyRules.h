// Rules on the rules of $DEPENDANCES: whom they act on, what they ask, and what can never come of them.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family DependencyRules();

} // namespace lytdlg
