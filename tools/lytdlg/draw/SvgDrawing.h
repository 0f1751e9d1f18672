// Draws a dialog as SVG, pixel for pixel where the window and its controls stand. Each character has its place from the
// widths of the dialog's own font, so that a text that is cut off in the window is cut off at the same letter here.
#pragma once

#include "lytdlg/draw/Snapshot.h"

namespace lytdlg
{

struct SvgStyle
{
    bool showsNames = false; // names at the controls, and hidden ones in outline
    bool showsTabs = false;  // the numbers of the tab stops
};

// In UTF-8, without an XML declaration.
std::string DrawSvg(const SeenDialog& dialog, const SvgStyle& style);

} // namespace lytdlg
