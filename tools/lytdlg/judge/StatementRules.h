// Rules on the form of statements: what the readers refuse, said in words.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family StatementRules();

} // namespace lytdlg
