// Pictures as PNG files.
#pragma once

#include <string>

#include <windows.h>

namespace lytdlg
{

// The bytes of a bitmap file with 24 bits a pixel as those of a PNG file, which is not compressed. Throws
// std::runtime_error for any other file.
std::string PngOfBitmap(const std::string& bitmap);

// Writes the picture of an open dialog: of the window itself, or where windows have no pixels of its drawing. Throws
// std::runtime_error, with the way out, when it cannot.
void WritePng(const std::string& file, HWND window, const std::string& svg);

} // namespace lytdlg
