// Rules on the values that $VALUES gives to the items of lists, to options and to check boxes.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family ContentRules();

} // namespace lytdlg
