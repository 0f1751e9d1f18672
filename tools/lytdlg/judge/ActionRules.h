// Rules on what $VALUES makes controls do: the actions of buttons, double clicks, and contents from libraries.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family ActionRules();

} // namespace lytdlg
