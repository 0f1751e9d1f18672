// The data-source library `lytsrc`, found where the platform finds a library by its bare name.
#pragma once

#include <lytsrc.h>

// Gives the pair of functions that serves a catalogue: the para tree for 'P', the symbol tree for anything else. False,
// with `start` and `next` as the caller set them, as long as the library is missing; false with what was found when one
// of the two is missing in it.
[[nodiscard]] bool lytGetTreeSource(char kind, lytTreeStartFunction& start, lytTreeNextFunction& next);
