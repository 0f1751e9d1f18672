// Rules on the texts that a description shows, in every language beside it.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family TextRules();

} // namespace lytdlg
