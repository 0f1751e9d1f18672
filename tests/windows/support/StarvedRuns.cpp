// A modal run over windows in memory that nothing could end any more was cancelled, so that the call came back. The test
// that opened it has failed, in spite of all else that it found.
#include "native/MemoryWindows.h"

#include <gtest/gtest.h>

namespace
{

class StarvedRuns : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo& /*test*/) override
    {
        const int count = platform::TakeStarvedRuns();
        if (count != 0)
            ADD_FAILURE() << count << " modal runs were cancelled, since nothing was left that could have ended them";
    }
};

// Only its making counts.
[[maybe_unused]] const bool isListening = []
{
    testing::UnitTest::GetInstance()->listeners().Append(std::make_unique<StarvedRuns>().release());
    return true;
}();

} // namespace
