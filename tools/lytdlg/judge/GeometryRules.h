// Rules on where the controls stand and on the way of the Tab key from one to the next.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family GeometryRules();

} // namespace lytdlg
