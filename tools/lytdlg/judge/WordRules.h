// Rules on words that stand where the library looks for none, and passes them over.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family WordRules();

} // namespace lytdlg
