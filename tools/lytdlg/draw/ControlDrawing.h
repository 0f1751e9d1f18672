// Draws one control, within its place.
#pragma once

#include "lytdlg/draw/SvgPen.h"

namespace lytdlg
{

void DrawControl(SvgPen& pen, const SeenControl& control);

} // namespace lytdlg
