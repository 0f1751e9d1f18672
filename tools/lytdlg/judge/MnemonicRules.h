// Rules on the letters that lead to a control from the keyboard.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

Family MnemonicRules();

} // namespace lytdlg
