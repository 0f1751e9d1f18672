// Pages with drawings of dialogs. They need no script and no other file, and are XML as well as HTML.
#pragma once

#include "lytdlg/draw/Markup.h"
#include "lytdlg/draw/SvgDrawing.h"

namespace lytdlg
{

// A dialog, with a table of its controls; each leads to its row, and each row to its control.
std::string DialogPage(const std::string& title, const SeenDialog& dialog, const SvgStyle& style);

// One drawing on a sheet, or what the library said instead.
struct SheetEntry
{
    std::string dialog;
    std::string language;
    int pixelsPerInch = 96;
    SeenDialog seen;
    std::string message; // in UTF-8; empty when there is a drawing
};

// Many drawings, in their order; those of one dialog stand next to each other.
std::string SheetPage(const std::string& title, const std::vector<SheetEntry>& entries, const SvgStyle& style);

} // namespace lytdlg
