#include "commandline/RunProgram.h"
#include "lytdlg/draw/Output.h"
#include "lytdlg/draw/Png.h"
#include "lytdlg/text/TextFile.h"

#include <stdexcept>

namespace lytdlg
{

void WritePng(const std::string& file, HWND /*window*/, const std::string& svg)
{
    const TemporaryFile drawing(svg);
    const int code = commandline::RunProgram({"rsvg-convert", "-o", file, drawing.Name().string()});
    if (code < 0)
        throw std::runtime_error("a PNG needs rsvg-convert, which is not installed: apt-get install librsvg2-bin, or "
                                 "write an .svg");
    if (code > 0)
        throw std::runtime_error("rsvg-convert could not write \"" + file + "\"");
}

} // namespace lytdlg
