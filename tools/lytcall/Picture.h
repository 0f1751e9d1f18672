// Pictures of windows, as bitmap files, and the screen that shows them.
#pragma once

#include <windows.h>

#include <string>

namespace lytcall
{

// Saves what the window shows, frame included; false when it cannot be drawn or the file cannot be written.
bool SavePicture(HWND window, const std::string& fileName);
// Whether there is a screen on which somebody may look at windows.
bool HasScreen();

} // namespace lytcall
