// Pictures of windows, as bitmap files.
#pragma once

#include <windows.h>

#include <string>

namespace lytcall
{

// Saves what the window shows, frame included; false when it cannot be drawn or the file cannot be written.
bool SavePicture(HWND window, const std::string& fileName);

} // namespace lytcall
