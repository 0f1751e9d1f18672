#include "support/Leaks.h"

#include <gtest/gtest.h>

void ExpectNoGrowth(const std::function<void()>& once, int rounds)
{
    // The first look brings in what it needs itself.
    Holdings().Text();
    constexpr int warmUp = 20;
    for (int round = 0; round < warmUp; ++round)
        once();
    const Holdings before;
    for (int round = 0; round < rounds; ++round)
        once();
    EXPECT_EQ(Holdings().GrowthSince(before, rounds), "");
}
