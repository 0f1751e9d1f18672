#include "sysinfo/files/FileListing.h"

#include "environment/LocalTime.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::string Line(const char* directory, const char* mask, const FileEntry& entry)
{
    const std::optional<CString> line = FileLine(directory, mask, entry);
    return line ? line->GetString() : "none";
}

std::tm Date(int year)
{
    std::tm time = {};
    time.tm_year = year - 1900;
    time.tm_mon = 1;
    time.tm_mday = 3;
    time.tm_hour = 4;
    time.tm_min = 5;
    time.tm_sec = 6;
    return time;
}

std::string Format(const std::tm& time)
{
    char text[128] = "";
    std::strftime(text, sizeof text, "%c", &time);
    return text;
}

} // namespace

TEST(FileListing, ShowsAFileWithSizeAndDate)
{
    EXPECT_EQ(Line("C:\\lyt\\", "*.*", {"a.dll", false, 1234, "02/03/26 04:05:06"}),
              "  C:\\lyt\\a.dll                   Size:       1234 Date: 02/03/26 04:05:06");
    EXPECT_EQ(Line("", "*.*", {"a.dll", false, 0, ""}), "  a.dll                          Size:          0 Date: ");
}

TEST(FileListing, LetsALongNamePushTheColumns)
{
    EXPECT_EQ(Line("C:\\a long name of a directory\\", "*", {"file.txt", false, 4294967295U, "d"}),
              "  C:\\a long name of a directory\\file.txt Size: 4294967295 Date: d");
}

TEST(FileListing, ShowsADirectoryWithItsNameWhenTheMaskHasNoDot)
{
    EXPECT_EQ(Line("C:\\lyt\\", "*", {"sub", true, 0, "d"}), "  C:\\lyt\\sub");
    EXPECT_EQ(Line("", "lyt", {"lyt", true, 0, "d"}), "  lyt");
}

TEST(FileListing, LeavesOutDirectoriesWhenTheMaskHasADot)
{
    EXPECT_EQ(Line("C:\\lyt\\", "*.*", {"sub", true, 0, "d"}), "none");
    EXPECT_EQ(Line("C:\\lyt\\", "lyt*.dot", {"sub", true, 0, "d"}), "none");
}

TEST(FileListing, LeavesOutTheDirectoryItselfAndTheOneAbove)
{
    for (const char* name : {".", ".."})
        for (const bool isDirectory : {true, false})
        {
            EXPECT_EQ(Line("C:\\", "*", {name, isDirectory, 0, ""}), "none");
            EXPECT_EQ(Line("C:\\", "*.*", {name, isDirectory, 0, ""}), "none");
        }
    EXPECT_EQ(Line("C:\\", "*", {"...", true, 0, ""}), "  C:\\...");
}

TEST(FileListing, GoesDownIntoDirectoriesOnly)
{
    EXPECT_TRUE(IsSubdirectory({"sub", true, 0, ""}));
    EXPECT_FALSE(IsSubdirectory({"sub", false, 0, ""}));
    EXPECT_FALSE(IsSubdirectory({".", true, 0, ""}));
    EXPECT_FALSE(IsSubdirectory({"..", true, 0, ""}));
}

TEST(FileListing, WordsDatesAsTheRuntimeDoes)
{
    for (const int year : {1900, 1969, 2026, 9999})
        EXPECT_EQ(FileDateText(Date(year)), Format(Date(year)).c_str()) << year;
}

TEST(FileListing, ShowsTheTimeValue0ForADateBefore1900)
{
    std::tm zero = {};
    ASSERT_TRUE(LocalTimeOf(0, zero));
    EXPECT_EQ(FileDateText(Date(1899)), Format(zero).c_str());
    EXPECT_EQ(FileDateText(Date(1601)), Format(zero).c_str());
    EXPECT_EQ(FileDateText(Date(0)), Format(zero).c_str());
}

TEST(FileListing, HasNoWordsForADateThatTheRuntimeRefuses)
{
    EXPECT_EQ(FileDateText(Date(10000)), "");
    EXPECT_EQ(FileDateText(Date(30827)), "");
}
