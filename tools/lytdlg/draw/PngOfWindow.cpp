#include "lytcall/Picture.h"
#include "lytdlg/draw/Output.h"
#include "lytdlg/draw/Png.h"
#include "lytdlg/draw/ScratchFile.h"

#include <stdexcept>

namespace lytdlg
{

void WritePng(const std::string& file, HWND window, const std::string& /*svg*/)
{
    const ScratchFile bitmap(".bmp");
    if (!lytcall::SavePicture(window, bitmap.Name()))
        throw std::runtime_error("the window gives no picture");
    WriteOut(file, PngOfBitmap(bitmap.Read()));
}

} // namespace lytdlg
