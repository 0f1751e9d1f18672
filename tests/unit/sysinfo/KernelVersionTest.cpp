#include "sysinfo/system/KernelVersion.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

KernelVersionFacts Facts(std::optional<CString> fileVersion)
{
    return {"6.3.9600", std::move(fileVersion), {1, 2, 3, 4}, "C:\\kernel32.dll", "20.11.2026 08:15"};
}

} // namespace

TEST(KernelVersion, JoinsProductNumbersFileAndDate)
{
    EXPECT_EQ(KernelVersionText(Facts("10.0.19041.1 (WinBuild.160101.0800)")),
              "6.3.9600; 10,0,19041,1; C:\\kernel32.dll; 20.11.2026 08:15");
}

TEST(KernelVersion, TakesItsNumbersByTheFirstSeparatorOfTheText)
{
    static const struct
    {
        const char* text;
        std::array<int, 4> numbers;
    } cases[] = {
        {"5.1.2600.5512", {5, 1, 2600, 5512}},
        {"5,1,2600,5512", {5, 1, 2600, 5512}},
        {"5,1.2600", {5, 1, 0, 0}},
        {"5.1,2600", {5, 1, 0, 0}},
        {"5, 1, 2600, 5512", {5, 1, 2600, 5512}},
        {"7", {7, 0, 0, 0}},
        {"5.99999999999.-99999999999.1", {5, INT_MAX, INT_MIN, 1}},
        {"version 7", {0, 0, 0, 0}},
        {"", {0, 0, 0, 0}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(VersionNumbers(Facts(c.text)), c.numbers);
    }
}

TEST(KernelVersion, WithoutATextTakesTheFixedNumbers)
{
    EXPECT_EQ(KernelVersionText(Facts({})), "6.3.9600; 1,2,3,4; C:\\kernel32.dll; 20.11.2026 08:15");
}

TEST(KernelVersion, WithoutAnyNumberShowsNoDate)
{
    EXPECT_EQ(KernelVersionText(Facts("none")), "6.3.9600; 0,0,0,0; C:\\kernel32.dll; ");
    EXPECT_EQ(KernelVersionText(Facts("0.0.0.1")), "6.3.9600; 0,0,0,1; C:\\kernel32.dll; 20.11.2026 08:15");
}

TEST(KernelVersion, PutsTheLanguageAheadOfTheCodePage)
{
    EXPECT_EQ(LanguageAndCodePage(0x04B00409), 0x040904B0U);
    EXPECT_EQ(LanguageAndCodePage(0x04E40407), 0x040704E4U);
}

TEST(KernelVersion, WordsItsDateWithLeadingZeros)
{
    EXPECT_EQ(KernelDateText(1, 2, 2009, 3, 4), "01.02.2009 03:04");
    EXPECT_EQ(KernelDateText(31, 12, 1999, 23, 59), "31.12.1999 23:59");
}
