#include "ReportTest.h"

#include <thread>

namespace
{

class ReportStore : public ReportTest
{
protected:
    int Read(int index)
    {
        char line[16] = "";
        return readLine(index, line, sizeof line);
    }
};

} // namespace

// Comes first: only a fresh process has gathered no report.
TEST_F(ReportStore, GivesNothingBeforeAnyReport)
{
    char line[16] = "untouched";
    EXPECT_EQ(readLine(0, line, sizeof line), 0);
    EXPECT_STREQ(line, "untouched");
}

TEST_F(ReportStore, StaysWhenTheReaderStopsBeforeTheEndUntilTheRelease)
{
    gather("");
    EXPECT_EQ(Read(0), 1);
    EXPECT_EQ(Read(3), 1);
    EXPECT_EQ(Read(1), 1);
    release();
    EXPECT_EQ(Read(0), 0);
}

TEST_F(ReportStore, NextReportStartsAfresh)
{
    const size_t count = Report().size();
    gather("");
    EXPECT_EQ(Read(5), 1);
    EXPECT_EQ(Report().size(), count);
}

TEST_F(ReportStore, HoldsNoLineBreaks)
{
    for (const std::string& line : Report())
        EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
}

TEST_F(ReportStore, TwoThreadsGatherOneReportAfterTheOther)
{
    const size_t count = Report().size();
    std::thread other([this] { gather(""); });
    gather("");
    other.join();
    EXPECT_EQ(Read(static_cast<int>(count) - 1), 1);
    EXPECT_EQ(Read(static_cast<int>(count)), 0);
}
