// What the statements of $INPUT put into the controls.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

bool AddsItems(const ClytControlFill& fill);
// Whether the piece of the input goes into the control.
bool TakesPiece(const ClytControlFill& fill);

} // namespace lytdlg
