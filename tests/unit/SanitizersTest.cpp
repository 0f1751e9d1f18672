// What the sanitizers of this build have to stop at, where compilers differ in what they turn on.
#include <gtest/gtest.h>

namespace
{

int CutToInteger(float number)
{
    return static_cast<int>(number);
}

} // namespace

TEST(SanitizersDeathTest, StopAtANumberThatNoIntegerHolds)
{
    const volatile float outOfRange = 3e9F;
    EXPECT_DEATH(CutToInteger(outOfRange), "outside the range");
}
