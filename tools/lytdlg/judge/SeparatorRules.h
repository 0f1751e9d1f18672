// Rules on what a statement of the input cuts its piece by.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family SeparatorRules();

} // namespace lytdlg
