#include "lytcall/Picture.h"
#include "lytdlg/draw/Output.h"
#include "lytdlg/draw/Png.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <stdexcept>

namespace lytdlg
{

void WritePng(const std::string& file, HWND window, const std::string& /*svg*/)
{
    const TemporaryFile bitmap("");
    if (!lytcall::SavePicture(window, NameForLibrary(bitmap.Name())))
        throw std::runtime_error("the window gives no picture");
    WriteOut(file, PngOfBitmap(ReadWholeFile(bitmap.Name()).value_or("")));
}

} // namespace lytdlg
