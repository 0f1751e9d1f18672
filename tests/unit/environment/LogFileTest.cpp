// The log's banners. What the log holds is tested through its export.
#include "environment/LogFile.h"

#include "support/RaisedMessage.h"

#include <gtest/gtest.h>

#include <limits>
#include <regex>

TEST(LogBanner, TellsDateAndTime)
{
    EXPECT_TRUE(std::regex_match(lytLogBannerLine("END...    ", 1'000'000'000).GetString(),
                                 std::regex("END\\.\\.\\.    Date 09/0[89]/01           Time \\d\\d:\\d\\d:40\n")));
}

TEST(LogBanner, RaisesTheInvalidArgumentExceptionForATimeWithoutADate)
{
    EXPECT_EQ(RaisedMessage([] { lytLogBannerLine("START...  ", std::numeric_limits<std::time_t>::max()); }),
              "An argument is missing or out of range.");
}
