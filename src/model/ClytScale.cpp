#include "model/ClytScale.h"

#include <limits>

float lytScaleX = 1.0F;
float lytScaleY = 1.0F;

int lytScaled(int units, float factor)
{
    constexpr auto limit = static_cast<float>(std::numeric_limits<int>::max()); // rounds up to 2 to the 31st
    const float scaled = static_cast<float>(units) * factor;
    if (scaled >= limit)
        return std::numeric_limits<int>::max();
    return scaled <= -limit ? std::numeric_limits<int>::min() : static_cast<int>(scaled);
}
