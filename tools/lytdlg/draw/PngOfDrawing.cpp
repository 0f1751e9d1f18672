#include "lytdlg/draw/Output.h"
#include "lytdlg/draw/Png.h"

namespace lytdlg
{

void WritePng(const std::string& file, HWND /*window*/, const std::string& svg)
{
    WriteByProgram(file, {"rsvg-convert"}, svg,
                   "a PNG needs rsvg-convert, which is not installed: apt-get install librsvg2-bin, or write an .svg");
}

} // namespace lytdlg
