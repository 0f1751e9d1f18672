// Rules on the libraries that a description calls.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family PartnerRules();

} // namespace lytdlg
