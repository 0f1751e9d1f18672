#include "ProbeFixture.h"

namespace
{

class Templates : public ProbeFixture
{
protected:
    void SetText(const std::string& key, const std::string& name, const std::string& text)
    {
        registry.SetText(HKEY_CURRENT_USER, key, name, text);
    }
};

const std::string cannotOpen = "Cannot open registry key ";
const std::string office = "Software\\Microsoft\\Office\\";

} // namespace

TEST_F(Templates, OfVersion8AreDefaultValuesOfSubkeys)
{
    const std::string key = office + "8.0\\Common\\FileNew";
    SetText(key + "\\LocalTemplates", "", "C:\\user");
    SetText(key + "\\SharedTemplates", "", "C:\\group");
    SetText(office + "8.0\\Word\\Options", "STARTUP-PATH", "C:\\start");
    EXPECT_EQ(lytProbeUserTemplates(8), "C:\\user");
    EXPECT_EQ(lytProbeWorkgroupTemplates(8), "C:\\group");
    EXPECT_EQ(lytProbeStartup(8), "C:\\start");
}

TEST_F(Templates, OfLaterVersionsStandInGeneralAndOptions)
{
    for (const int n : {9, 16, 99})
    {
        const std::string version = office + std::to_string(n) + ".0\\";
        SetText(version + "Common\\General", "UserTemplates", "C:\\user" + std::to_string(n));
        SetText(version + "Common\\General", "SharedTemplates", "C:\\group");
        SetText(version + "Word\\Options", "STARTUP-PATH", "C:\\start");
        EXPECT_EQ(lytProbeUserTemplates(n), ("C:\\user" + std::to_string(n)).c_str());
        EXPECT_EQ(lytProbeWorkgroupTemplates(n), "C:\\group");
        EXPECT_EQ(lytProbeStartup(n), "C:\\start");
    }
}

TEST_F(Templates, OfAMissingKeyAreWords)
{
    EXPECT_EQ(lytProbeUserTemplates(6), (cannotOpen + "Software\\Microsoft\\Word\\6.0\\Options").c_str());
    EXPECT_EQ(lytProbeUserTemplates(16), (cannotOpen + office + "16.0\\Common\\General").c_str());
    EXPECT_EQ(lytProbeWorkgroupTemplates(16), (cannotOpen + office + "16.0\\Common\\General").c_str());
    EXPECT_EQ(lytProbeStartup(16), (cannotOpen + office + "16.0\\Word\\Options").c_str());
}

TEST_F(Templates, OfAMissingValueAreEmpty)
{
    registry.AddKey(HKEY_CURRENT_USER, office + "16.0\\Common\\General");
    registry.AddKey(HKEY_CURRENT_USER, office + "8.0\\Common\\FileNew");
    registry.AddKey(HKEY_CURRENT_USER, office + "16.0\\Word\\Options");
    EXPECT_EQ(lytProbeUserTemplates(16), "");
    EXPECT_EQ(lytProbeWorkgroupTemplates(16), "");
    EXPECT_EQ(lytProbeStartup(16), "");
    EXPECT_EQ(lytProbeUserTemplates(8), "");
}

TEST_F(Templates, OfVersion5AreEmptyForTheUserAndUnsupportedOtherwise)
{
    for (const int n : {5, 0, -1, 100})
    {
        EXPECT_EQ(lytProbeUserTemplates(n), "");
        EXPECT_EQ(lytProbeWorkgroupTemplates(n), "Cannot open registry key unsupported version");
        EXPECT_EQ(lytProbeStartup(n), "Cannot open registry key unsupported version");
        EXPECT_EQ(lytProbeMacroSecurity(n), "Cannot open registry key unsupported version");
    }
}

TEST_F(Templates, OfMoreThan400BytesAreEmpty)
{
    const std::string key = office + "16.0\\Common\\General";
    SetText(key, "UserTemplates", std::string(399, 'x'));
    EXPECT_EQ(lytProbeUserTemplates(16), std::string(399, 'x').c_str());
    SetText(key, "UserTemplates", std::string(400, 'x'));
    EXPECT_EQ(lytProbeUserTemplates(16), "");
    SetText(office + "8.0\\Common\\FileNew\\LocalTemplates", "", std::string(400, 'x'));
    EXPECT_EQ(lytProbeUserTemplates(8), "");
}

TEST_F(Templates, WithoutTheirEndAreReadAsFarAsTheyGo)
{
    registry.Set(HKEY_CURRENT_USER, office + "16.0\\Common\\General", "UserTemplates", REG_SZ, "C:\\user");
    EXPECT_EQ(lytProbeUserTemplates(16), "C:\\user");
}
