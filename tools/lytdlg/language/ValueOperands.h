// What the words after the control of a statement of $VALUES name.
#pragma once

#include "lytdlg/language/NamedWord.h"

namespace lytdlg
{

// The index of a value, or -1 for the keyword.
NamedWord OperandOf(const Description& description, const ValueStatement& statement, int index);

} // namespace lytdlg
