// The data-source library `lytsrc`, found where the platform finds a library by its bare name.
#pragma once

#include "base/ClytPartnerFunction.h"

#include <lytsrc.h>

// The two functions that serve one catalogue.
struct ClytTreeSource
{
    ClytPartnerFunction<std::remove_pointer_t<lytTreeStartFunction>> start;
    ClytPartnerFunction<std::remove_pointer_t<lytTreeNextFunction>> next;
};

// Gives the pair of functions that serves a catalogue: the para tree for 'P', the symbol tree for anything else. False,
// with the source as the caller set it, as long as the library is missing; false with what was found when one of the two
// is missing in it.
[[nodiscard]] bool lytGetTreeSource(char kind, ClytTreeSource& source);
