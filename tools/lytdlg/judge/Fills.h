// What the statements of $INPUT put into the controls.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

bool AddsItems(const ClytControlFill& fill);
// Whether the piece of the input goes into the control.
bool TakesPiece(const ClytControlFill& fill);
// The fills of all input parts that reach a control. They live as long as the description.
std::vector<const ClytControlFill*> FillsOf(const Description& description, const std::string& name);

} // namespace lytdlg
