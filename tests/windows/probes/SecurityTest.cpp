#include "ProbeFixture.h"

namespace
{

class Security : public ProbeFixture
{
protected:
    void Trust(const std::string& location, const std::string& path)
    {
        registry.SetText(HKEY_CURRENT_USER, locations + "\\" + location, "Path", path);
    }

    const std::string level = "Software\\Microsoft\\Office\\11.0\\Word\\Security";
    const std::string locations = "Software\\Microsoft\\Office\\16.0\\Word\\Security\\Trusted Locations";
};

} // namespace

TEST_F(Security, OfVersion11IsItsLevel)
{
    registry.SetNumber(HKEY_CURRENT_USER, level, "Level", 2);
    EXPECT_EQ(lytProbeMacroSecurity(11), "2 MIDDLE");
}

TEST_F(Security, OfVersion11WithoutALevelIs0)
{
    registry.AddKey(HKEY_CURRENT_USER, level);
    EXPECT_EQ(lytProbeMacroSecurity(11), "0 UNKNOWN");
}

TEST_F(Security, OfVersion11WithoutItsKeyIsWords)
{
    EXPECT_EQ(lytProbeMacroSecurity(11), ("Cannot open registry key " + level).c_str());
}

TEST_F(Security, TrustsTheInstallationBelowAnySubkey)
{
    Install("C:\\lyt");
    Trust("Location0", "D:\\");
    Trust("Anything", "c:\\LYT");
    EXPECT_EQ(lytProbeMacroSecurity(16), "C:\\lyt\\ is a trusted location");
}

TEST_F(Security, DoesNotTrustOtherDirectories)
{
    Install("C:\\lyt\\");
    Trust("Location0", "C:\\lyt\\sub");
    Trust("Location1", "");
    registry.AddKey(HKEY_CURRENT_USER, locations + "\\Location2");
    EXPECT_EQ(lytProbeMacroSecurity(16), "C:\\lyt\\ is NO trusted location");
}

TEST_F(Security, StepsOverALocationWithTooLongAName)
{
    Install("C:\\lyt");
    Trust(std::string(70, 'a'), "D:\\");
    Trust("b", "C:\\lyt");
    EXPECT_EQ(lytProbeMacroSecurity(16), "C:\\lyt\\ is a trusted location");
}

TEST_F(Security, WithoutTrustedLocationsNamesTheKey)
{
    EXPECT_EQ(lytProbeMacroSecurity(16), ("Cannot open registry key " + locations).c_str());
}
