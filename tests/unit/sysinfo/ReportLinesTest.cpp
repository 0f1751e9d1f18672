#include "sysinfo/frame/Report.h"

#include "environment/ClytEnvironment.h"
#include "sysinfo/frame/Report.h"

#include <gtest/gtest.h>

namespace
{

class ReportRead : public testing::Test
{
protected:
    ReportRead()
    {
        lytEnvironment.lytReportLines.RemoveAll();
        for (const char* line : {"zero", "one", "two", "three"})
            AddReportLine(line);
    }
    ~ReportRead() override { lytEnvironment.lytReportLines.RemoveAll(); }

    static std::string Line(int index)
    {
        char target[16] = "untouched";
        const int read = lytReadReportLine(index, target, sizeof target);
        return std::to_string(read) + ":" + target;
    }
    static int Count() { return lytEnvironment.lytReportLines.GetLines().GetCount(); }
};

} // namespace

TEST_F(ReportRead, DeliversEachLineByItsIndexInAnyOrder)
{
    static const char* const texts[] = {"1:zero", "1:one", "1:two", "1:three"};
    for (const int index : {0, 1, 2, 3, 3, 2, 0, 3, 1, 1, 0})
        EXPECT_EQ(Line(index), texts[index]);
}

TEST_F(ReportRead, PastTheEndFreesTheStoreAndAllIndexesGiveNothingFromThenOn)
{
    EXPECT_EQ(Line(3), "1:three");
    EXPECT_EQ(Line(4), "0:untouched");
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Line(0), "0:untouched");
    EXPECT_EQ(Line(3), "0:untouched");
}

TEST_F(ReportRead, NegativeIndexFreesTheStore)
{
    EXPECT_EQ(Line(-1), "0:untouched");
    EXPECT_EQ(Count(), 0);
}

TEST_F(ReportRead, StoppingEarlyLeavesTheStore)
{
    EXPECT_EQ(Line(1), "1:one");
    EXPECT_EQ(Count(), 4);
}

TEST_F(ReportRead, EmptyStoreGivesNothingAtIndexZero)
{
    lytEnvironment.lytReportLines.RemoveAll();
    EXPECT_EQ(Line(0), "0:untouched");
}

TEST_F(ReportRead, EmptyLineIsALine)
{
    AddReportLine("");
    EXPECT_EQ(Line(4), "1:");
}

TEST_F(ReportRead, LongLineIsCutToTheTarget)
{
    AddReportLine(CString('x', 300));
    std::string target(256, '#');
    EXPECT_EQ(lytReadReportLine(4, target.data(), 256), 1);
    EXPECT_EQ(target, std::string(255, 'x') + '\0');
}

TEST_F(ReportRead, LineAsLongAsTheTargetLosesItsLastCharacter)
{
    char target[6] = "#####";
    EXPECT_EQ(lytReadReportLine(3, target, 5), 1);
    EXPECT_STREQ(target, "thre");
    EXPECT_EQ(target[5], '\0');
}

TEST_F(ReportRead, TargetOfOneByteBecomesEmpty)
{
    char target[2] = {'#', '#'};
    EXPECT_EQ(lytReadReportLine(0, target, 1), 1);
    EXPECT_EQ(target[0], '\0');
    EXPECT_EQ(target[1], '#');
}

TEST_F(ReportRead, LastByteOfTheTargetBecomesZero)
{
    std::string target(16, '#');
    EXPECT_EQ(lytReadReportLine(1, target.data(), 16), 1);
    EXPECT_EQ(target, std::string("one\0###########\0", 16));
}

TEST_F(ReportRead, NoTargetIsAnsweredBeforeAnythingElse)
{
    char target[4] = "abc";
    EXPECT_EQ(lytReadReportLine(0, nullptr, 10), 0);
    EXPECT_EQ(lytReadReportLine(9, target, 0), 0);
    EXPECT_EQ(lytReadReportLine(9, target, -1), 0);
    EXPECT_STREQ(target, "abc");
    EXPECT_EQ(Count(), 4);
}

TEST_F(ReportRead, FreshStoreIsReadFromItsOwnBeginning)
{
    EXPECT_EQ(Line(3), "1:three");
    lytEnvironment.lytReportLines.RemoveAll();
    AddReportLine("fresh");
    EXPECT_EQ(Line(0), "1:fresh");
}

TEST_F(ReportRead, TakesSeveralLinesInTheirOrder)
{
    CStringList lines;
    lines.AddTail("four");
    lines.AddTail("five");
    AddReportLines(lines);
    EXPECT_EQ(Line(4), "1:four");
    EXPECT_EQ(Line(5), "1:five");
}

TEST_F(ReportRead, LinesAddedAfterTheLastReadAreReached)
{
    EXPECT_EQ(Line(3), "1:three");
    AddReportLine("four");
    EXPECT_EQ(Line(4), "1:four");
}

TEST_F(ReportRead, ReleaseFreesTheStore)
{
    EXPECT_EQ(Line(2), "1:two");
    lytEnvironment.Reset();
    EXPECT_EQ(Line(0), "0:untouched");
}
