// What a program over windows in memory asks of them beyond the platform's functions.
#pragma once

#include <cstddef>

namespace platform
{

// Modal runs that were cancelled since the last call, because nothing was left that could have ended them: the test that
// opened them has failed.
int TakeStarvedRuns();
// All windows that exist, children included.
size_t CountWindows();
// The resolution of the screen from the next window on: 96 or 120 pixels per inch.
void SetPixelsPerInch(int pixelsPerInch);

} // namespace platform
