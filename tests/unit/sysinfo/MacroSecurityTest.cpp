#include "sysinfo/word/MacroSecurity.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::string Fixed(int n)
{
    MacroSecurityFacts facts;
    facts.n = n;
    return MacroSecurityText(facts).GetString();
}

std::string OfLevel(int n, unsigned level)
{
    MacroSecurityFacts facts;
    facts.n = n;
    facts.isKeyOpen = true;
    facts.level = level;
    return MacroSecurityText(facts).GetString();
}

std::string OfLocations(const char* directory, std::vector<CString> paths, int n = 16)
{
    MacroSecurityFacts facts;
    facts.n = n;
    facts.isKeyOpen = true;
    facts.installDirectory = directory;
    facts.paths = std::move(paths);
    return MacroSecurityText(facts).GetString();
}

} // namespace

TEST(MacroSecurity, OfOldVersionsDoesNotApply)
{
    EXPECT_EQ(Fixed(6), "N/A in Word 6.0");
    EXPECT_EQ(Fixed(7), "N/A in Word 7.0/95");
    EXPECT_EQ(Fixed(8), "N/A in Word 8.0/97");
}

TEST(MacroSecurity, OfUnknownVersionsIsUnsupported)
{
    for (const int n : {-1, 0, 5, 100})
        EXPECT_EQ(Fixed(n), "Cannot open registry key unsupported version");
}

TEST(MacroSecurity, NamesTheKeyThatCannotBeOpened)
{
    EXPECT_EQ(Fixed(9), R"(Cannot open registry key Software\Microsoft\Office\9.0\Word\Security)");
    EXPECT_EQ(Fixed(11), R"(Cannot open registry key Software\Microsoft\Office\11.0\Word\Security)");
    EXPECT_EQ(Fixed(12), R"(Cannot open registry key Software\Microsoft\Office\12.0\Word\Security\Trusted Locations)");
    EXPECT_EQ(Fixed(99), R"(Cannot open registry key Software\Microsoft\Office\99.0\Word\Security\Trusted Locations)");
}

TEST(MacroSecurity, OfEachVersionFrom5To100IsALevelOrATrustedLocationOrFixedWords)
{
    const std::vector<CString> paths = {"C:\\lyt\\"};
    for (int n = 5; n <= 100; ++n)
    {
        SCOPED_TRACE(n);
        const std::string level = OfLevel(n, 3);
        const std::string trust = OfLocations("C:\\lyt\\", paths, n);
        const std::string key = R"(Software\Microsoft\Office\)" + std::to_string(n) + R"(.0\Word\Security)";
        if (n >= 9 && n <= 11)
        {
            EXPECT_EQ(level, "3 HIGH");
            EXPECT_STREQ(MacroSecurityKey(n), key.c_str());
        }
        else if (n >= 12 && n <= 99)
        {
            EXPECT_EQ(trust, "C:\\lyt\\ is a trusted location");
            EXPECT_STREQ(MacroSecurityKey(n), (key + R"(\Trusted Locations)").c_str());
        }
        else
        {
            EXPECT_EQ(level, Fixed(n));
            EXPECT_EQ(trust, Fixed(n));
            EXPECT_EQ(MacroSecurityKey(n), "");
        }
    }
}

TEST(MacroSecurity, OfVersions9To11IsALevelWithItsWord)
{
    for (int n = 9; n <= 11; ++n)
    {
        EXPECT_EQ(OfLevel(n, 0), "0 UNKNOWN");
        EXPECT_EQ(OfLevel(n, 1), "1 LOW");
        EXPECT_EQ(OfLevel(n, 2), "2 MIDDLE");
        EXPECT_EQ(OfLevel(n, 3), "3 HIGH");
        EXPECT_EQ(OfLevel(n, 4), "4 VERY HIGH");
        EXPECT_EQ(OfLevel(n, 5), "5 UNKNOWN");
        EXPECT_EQ(OfLevel(n, 4294967295U), "4294967295 UNKNOWN");
    }
}

TEST(MacroSecurity, FromVersion12OnTellsWhetherTheInstallationIsTrusted)
{
    EXPECT_EQ(OfLocations("C:\\lyt\\", {"D:\\", "C:\\lyt\\"}), "C:\\lyt\\ is a trusted location");
    EXPECT_EQ(OfLocations("C:\\lyt\\", {"D:\\", "C:\\lyt\\sub\\"}), "C:\\lyt\\ is NO trusted location");
    EXPECT_EQ(OfLocations("C:\\lyt\\", {}), "C:\\lyt\\ is NO trusted location");
}

TEST(MacroSecurity, ComparesLocationsWithoutCaseAndWithTheirSeparator)
{
    EXPECT_EQ(OfLocations("C:\\lyt\\", {"c:\\LYT"}), "C:\\lyt\\ is a trusted location");
    EXPECT_EQ(OfLocations("C:\\lyt\\", {"C:\\ly"}), "C:\\lyt\\ is NO trusted location");
}

TEST(MacroSecurity, AnEmptyLocationTrustsNothing)
{
    EXPECT_EQ(OfLocations("\\", {""}), "\\ is NO trusted location");
    EXPECT_EQ(OfLocations("\\", {"\\"}), "\\ is a trusted location");
}
