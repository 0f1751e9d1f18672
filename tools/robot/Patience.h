// How long is waited for what may never come: some ten times what it takes on an idle machine. LYT_PATIENCE in the
// environment is a factor for all such limits, of programs and scripts alike.
#pragma once

#include <algorithm>
#include <cstdlib>

namespace robot
{

inline unsigned Patience(unsigned limit)
{
    const char* const factor = std::getenv("LYT_PATIENCE");
    return limit * static_cast<unsigned>(std::max(factor != nullptr ? std::atoi(factor) : 1, 1));
}

} // namespace robot
