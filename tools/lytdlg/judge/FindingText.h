// Findings as text: the line that names the place, the source line, a caret under the place, and the way out.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

// In UTF-8. With colour, for a terminal.
std::string TextOf(const Finding& finding, const Description& description, bool isColoured);

} // namespace lytdlg
