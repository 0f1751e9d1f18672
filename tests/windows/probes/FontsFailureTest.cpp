// Memory that runs out while the platform tells its fonts.
#include "ProbeFixture.h"

#include "environment/ClytEnvironment.h"
#include "support/FailingAllocation.h"

using FontsFailure = ProbeFixture;

TEST_F(FontsFailure, IsRaisedToWhoeverWantedTheLines)
{
    folder.Write("lyt.ini", "[FONTS]\nSans=Tahoma\n");
    lytEnvironment.SetInitPath(folder.Path().c_str());
    TakeLines();
    int completed = 0;
    const int failures = FailEachAllocation(
        [&]
        {
            lytEnvironment.lytReportLines.RemoveAll();
            lytProbeFonts();
            ++completed;
        });
    EXPECT_GT(failures, 100);
    EXPECT_EQ(completed, 1) << "a failure was swallowed";
    const Texts lines = TakeLines();
    ASSERT_GT(lines.size(), 1U);
    EXPECT_EQ(lines[1], "  Sans=Tahoma");
}
