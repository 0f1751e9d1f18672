#include "sysinfo/word/WordVersions.h"

#include <gtest/gtest.h>

TEST(WordVersions, StandInTheOrderOfBothKeysJoinedBySemicolons)
{
    EXPECT_EQ(WordVersionsText({{"6.0", "7.0"}, {"11.0", "16.0"}}), "6.0; 7.0; 11.0; 16.0");
    EXPECT_EQ(WordVersionsText({{}, {"16.0"}}), "16.0");
    EXPECT_EQ(WordVersionsText({{"6.0"}, {}}), "6.0");
    EXPECT_EQ(WordVersionsText({}), "");
}

TEST(WordVersions, KnownToBothKeysStandTwice)
{
    EXPECT_EQ(WordVersionsText({{"7.0"}, {"7.0"}}), "7.0; 7.0");
}

TEST(WordVersions, OfTheOfficeKeyEndAtTheFirstNameWithoutADigit)
{
    EXPECT_EQ(WordVersionsText({{}, {"15.0", "16.0", "Common", "9.0"}}), "15.0; 16.0");
}

TEST(WordVersions, OfTheOfficeKeyAreNoneWhenANameStandsAheadOfTheDigits)
{
    EXPECT_EQ(WordVersionsText({{}, {"Common", "15.0", "16.0"}}), "");
    EXPECT_EQ(WordVersionsText({{"6.0"}, {"Common", "15.0"}}), "6.0");
    EXPECT_EQ(WordVersionsText({{}, {"", "15.0"}}), "");
    EXPECT_EQ(WordVersionsText({{}, {"/", "15.0"}}), "");
    EXPECT_EQ(WordVersionsText({{}, {":", "15.0"}}), "");
}

TEST(WordVersions, OfTheWordKeyMayHaveAnyName)
{
    EXPECT_EQ(WordVersionsText({{"Common", "6.0"}, {}}), "Common; 6.0");
}
