#include "sysinfo/fonts/Locale.h"

#include "Lines.h"

#include <gtest/gtest.h>

TEST(Locale, ListsEachValueInOrderUnderItsLabel)
{
    CStringList lines;
    AddLocaleLines(
        [](unsigned locale, unsigned type)
        {
            CString text;
            text.Format("%u/%u", locale, type);
            return text;
        },
        lines);
    EXPECT_EQ(TextsOf(lines), (Texts{
                                  "LOCALE.SYSTEM.ANSICODEPAGE        = 2048/4100",
                                  "LOCALE.SYSTEM.CODEPAGE            = 2048/11",
                                  "LOCALE.USER.ANSICODEPAGE          = 1024/4100",
                                  "LOCALE.USER.CODEPAGE              = 1024/11",
                                  "LOCALE.USER.LANGUAGE              = 1024/2",
                                  "LOCALE.USER.COUNTRY (region code) = 1024/5",
                                  "LOCALE.USER.COUNTRY               = 1024/10",
                                  "LOCALE.USER.EBCDICCODEPAGE        = 1024/4114",
                                  "LOCALE.USER.LANGUAGE              = 1024/1",
                                  "LOCALE.USER.SABBREVCTRY           = 1024/7",
                                  "LOCALE.USER.COUNTRY               = 1024/6",
                                  "LOCALE.USER.ENGCOUNTRY            = 1024/4098",
                                  "LOCALE.USER.ENGLANGUAGE           = 1024/4097",
                                  "LOCALE.USER.ISO3166CTRY           = 1024/90",
                                  "LOCALE.USER.ISO639LANG            = 1024/89",
                                  "LOCALE.USER.NATIVECTRY            = 1024/8",
                                  "LOCALE.USER.NATIVELANG            = 1024/4",
                              }));
}

TEST(Locale, ValueThatCannotBeReadIsEmpty)
{
    CStringList lines;
    AddLocaleLines([](unsigned, unsigned) { return CString(); }, lines);
    EXPECT_EQ(TextsOf(lines).front(), "LOCALE.SYSTEM.ANSICODEPAGE        = ");
    EXPECT_EQ(lines.GetCount(), 17);
}

TEST(LanguageGroups, TellsForEachGroupWhetherItIsInstalled)
{
    static const char* const names[] = {"WESTERN_EUROPE",
                                        "CENTRAL_EUROPE",
                                        "BALTIC",
                                        "GREEK",
                                        "CYRILLIC",
                                        "TURKISH",
                                        "JAPANESE",
                                        "KOREAN",
                                        "TRADITIONAL_CHINESE",
                                        "SIMPLIFIED_CHINESE",
                                        "THAI",
                                        "HEBREW",
                                        "ARABIC",
                                        "VIETNAMESE",
                                        "INDIC",
                                        "GEORGIAN",
                                        "ARMENIAN"};
    Texts expected = {"Windows installed languages:"};
    for (unsigned group = 1; group <= 17; ++group)
    {
        const std::string name = names[group - 1];
        expected.push_back(group % 3 == 0 ? "Language " + name + " not installed in Windows, see ZVK note 939928"
                                          : "Language " + name + " is installed in Windows");
    }
    CStringList lines;
    AddLanguageGroupLines([](unsigned group) { return group % 3 != 0; }, lines);
    EXPECT_EQ(TextsOf(lines), expected);
}

TEST(LanguageGroups, AddNothingWhereWindowsDoesNotKnowThem)
{
    CStringList lines;
    AddLanguageGroupLines({}, lines);
    EXPECT_EQ(lines.GetCount(), 0);
}
