// Windows in memory and the runtime's heap; there is nothing else that could be lost.
#include "support/Leaks.h"

#include "platform/MemoryWindows.h"

#include <gtest/gtest.h>

#include <malloc.h>

void ExpectNoGrowth(const std::function<void()>& once, int rounds)
{
    constexpr int warmUp = 20;
    for (int round = 0; round < warmUp; ++round)
        once();
    const size_t windows = platform::CountWindows();
    const size_t bytes = mallinfo2().uordblks;
    for (int round = 0; round < rounds; ++round)
        once();
    EXPECT_EQ(platform::CountWindows(), windows);
    EXPECT_LT(mallinfo2().uordblks, bytes + static_cast<size_t>(rounds) * 16)
        << "What the runtime keeps for later counts as used; ctest runs the tests without that.";
}
