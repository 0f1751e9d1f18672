#include <lytsrc.h>

#include <gtest/gtest.h>

extern "C" int lytTreeRecordSizeInC();

TEST(DataSourceHeader, GivesTheSameRecordToBothLanguages)
{
    EXPECT_EQ(lytTreeRecordSizeInC(), 208);
    EXPECT_EQ(sizeof(lytTreeRecord), 208U);
}
