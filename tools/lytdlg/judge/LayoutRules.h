// Rules on the controls of the layout: their type words, numbers and names.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family LayoutRules();

} // namespace lytdlg
