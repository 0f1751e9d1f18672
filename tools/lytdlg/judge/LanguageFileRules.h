// Rules on language files as a whole: what the library reads of them, and what no dialog asks for.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family LanguageFileRules();

} // namespace lytdlg
