// Rules on the sections of a description: all there, in their order, each header as it must be.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family SectionRules();

} // namespace lytdlg
