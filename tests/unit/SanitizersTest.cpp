// What the sanitizers of this build have to stop at.
#include "support/Mistakes.h"

#include <gtest/gtest.h>

TEST(SanitizersDeathTest, StopAtMistakesWithMemory)
{
    EXPECT_DEATH(mistakes::WritePastABlock(), "heap-buffer-overflow");
    EXPECT_DEATH(mistakes::ReadAReleasedBlock(), "heap-use-after-free");
    EXPECT_DEATH(mistakes::ReleaseABlockTwice(), "double-free");
    EXPECT_DEATH(mistakes::IndexPastTheEndOfAVector(), "heap-buffer-overflow");
}

TEST(SanitizersDeathTest, StopAtNumbersThatNoIntegerHolds)
{
    EXPECT_DEATH(mistakes::OverflowASignedInteger(), "signed integer overflow");
    // Compilers differ in whether they look for this one unasked.
    EXPECT_DEATH(mistakes::CutANumberThatNoIntegerHolds(), "outside the range");
}
