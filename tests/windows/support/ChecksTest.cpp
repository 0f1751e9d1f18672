// What the checks of this build have to stop at.
#include "support/Library.h"
#include "support/Mistakes.h"

#include <gtest/gtest.h>
#include <lyt64.h>

using testing::ExitedWithCode;

namespace
{

constexpr int touchedAGuardPage = static_cast<int>(STATUS_ACCESS_VIOLATION);
constexpr int trapped = static_cast<int>(STATUS_ILLEGAL_INSTRUCTION);
constexpr int aborted = 3;

// The bytes of address space that are set aside and cannot be touched.
size_t ReservedMemory()
{
    size_t reserved = 0;
    MEMORY_BASIC_INFORMATION region = {};
    for (const char* address = nullptr; VirtualQuery(address, &region, sizeof region) != 0;)
    {
        if (region.State == MEM_RESERVE)
            reserved += region.RegionSize;
        address = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
    }
    return reserved;
}

} // namespace

TEST(ChecksDeathTest, StopAtMistakesWithMemory)
{
    EXPECT_EXIT(mistakes::WritePastABlock(), ExitedWithCode(touchedAGuardPage), "");
    EXPECT_EXIT(mistakes::ReadAReleasedBlock(), ExitedWithCode(touchedAGuardPage), "");
    EXPECT_EXIT(mistakes::ReleaseABlockTwice(), ExitedWithCode(trapped), "");
    EXPECT_EXIT(mistakes::IndexPastTheEndOfAVector(), ExitedWithCode(aborted), "");
}

TEST(ChecksDeathTest, StopAtNumbersThatNoIntegerHolds)
{
    EXPECT_EXIT(mistakes::OverflowASignedInteger(), ExitedWithCode(trapped), "");
    EXPECT_EXIT(mistakes::CutANumberThatNoIntegerHolds(), ExitedWithCode(trapped), "");
}

TEST(Checks, StandInTheLibraryToo)
{
    const size_t reserved = ReservedMemory();
    const std::string longText(100, 'x');
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")(longText.c_str(), "", "");
    // Nothing else wants as much as a guarded heap, which each module has for itself from its first block on.
    EXPECT_GT(ReservedMemory(), reserved + (size_t{1} << 32));
}
