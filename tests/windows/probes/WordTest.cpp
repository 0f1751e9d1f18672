// What the registry tells of the word processor: each call that reads it, at its limits. The whole of it is in the kept
// report.
#include "ProbeFixture.h"

#include "environment/ClytEnvironment.h"

namespace
{

class Word : public ProbeFixture
{
protected:
    void SetUser(const std::string& key, const std::string& name, const std::string& text)
    {
        registry.SetText(HKEY_CURRENT_USER, key, name, text);
    }
    void Trust(const std::string& location, const std::string& path)
    {
        SetUser(locations + "\\" + location, "Path", path);
    }
    static std::string Languages(int n)
    {
        return "Software\\Microsoft\\Office\\" + std::to_string(n) + ".0\\Common\\LanguageResources\\" +
               (n < 16 ? "EnabledLanguages" : "EnabledEditingLanguages");
    }
    Texts LanguageLines() const
    {
        return LinesOf([] { lytProbeEnabledLanguages(); });
    }

    const std::string office = "Software\\Microsoft\\Office\\";
    const std::string general = office + "16.0\\Common\\General";
    const std::string level = office + "11.0\\Word\\Security";
    const std::string locations = office + "16.0\\Word\\Security\\Trusted Locations";
    const std::string cannotOpen = "Cannot open registry key ";
};

} // namespace

TEST_F(Word, VersionsEndAtANameOfMoreThanNineCharactersAndAreKept)
{
    lytEnvironment.lytWordVersions = "old";
    EXPECT_EQ(lytProbeWordVersions(), "");
    EXPECT_EQ(lytEnvironment.lytWordVersions, "");
    registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Word\\6.0");
    for (const char* name : {"12.0", "123456789", "1234567890", "16.0"})
        registry.AddKey(HKEY_LOCAL_MACHINE, office + name);
    EXPECT_EQ(lytProbeWordVersions(), "6.0; 12.0; 123456789");
    EXPECT_EQ(lytEnvironment.lytWordVersions, "6.0; 12.0; 123456789");
}

TEST_F(Word, CurrentVersionIsTheFirstValueThatFits)
{
    const char* const key = "Word.Application\\CurVer";
    lytEnvironment.lytWordCurrent = "old";
    EXPECT_EQ(lytProbeWordCurrent(), "");
    EXPECT_EQ(lytEnvironment.lytWordCurrent, "");
    registry.SetText(HKEY_CLASSES_ROOT, key, "named", "Word.Application.12");
    EXPECT_EQ(lytProbeWordCurrent(), "12.0");
    registry.Set(HKEY_CLASSES_ROOT, key, "", REG_SZ, "Word.Application.13"); // without its end
    EXPECT_EQ(lytProbeWordCurrent(), "13.0");
    SetCurrentVersion(std::string(397, 'x') + ".9");
    EXPECT_EQ(lytProbeWordCurrent(), "9.0");
    SetCurrentVersion(std::string(398, 'x') + ".9");
    EXPECT_EQ(lytProbeWordCurrent(), "");
}

TEST_F(Word, CurrentVersionHasTheBitsOfTheRegisteredProgram)
{
    SetCurrentVersion("Word.Application.16");
    EXPECT_EQ(lytProbeWordCurrent(), "16.0");
    SetWordProgram(folder.Path() + "\\none.exe");
    EXPECT_EQ(lytProbeWordCurrent(), "16.0");
    SetWordProgram(OwnFile());
    EXPECT_EQ(lytProbeWordCurrent(), "16.0 64 bit");
    EXPECT_EQ(lytEnvironment.lytWordCurrent, "16.0 64 bit");
    SetWordProgram(folder.Write("winword.com", "a program of the oldest kind"));
    EXPECT_EQ(lytProbeWordCurrent(), "16.0 32 bit");
}

TEST_F(Word, ReleaseIsReadAtAnyLengthAndKnowsASubscription)
{
    const std::string key = "SOFTWARE\\Microsoft\\Office\\ClickToRun\\Configuration";
    ClickToRunFacts facts = lytProbeClickToRun();
    EXPECT_TRUE(facts.version == "" && facts.releaseIds == "" && !facts.isSubscription);
    const std::string ids(500, 'i');
    registry.SetText(HKEY_LOCAL_MACHINE, key, "ProductReleaseIDs", ids);
    registry.SetText(HKEY_LOCAL_MACHINE, key, "VersionToReport", "16.0.1234.5");
    facts = lytProbeClickToRun();
    EXPECT_TRUE(facts.version == "16.0.1234.5" && facts.releaseIds == ids.c_str() && !facts.isSubscription);
    registry.SetText(HKEY_LOCAL_MACHINE, key, "ProductReleaseIDs", "O365ProPlusRetail");
    EXPECT_TRUE(lytProbeClickToRun().isSubscription);
}

TEST_F(Word, DirectoriesAreReadUpTo400BytesFromKeyOrSubkey)
{
    const std::string subkey = office + "8.0\\Common\\FileNew\\LocalTemplates";
    EXPECT_EQ(lytProbeUserTemplates(16), (cannotOpen + general).c_str());
    EXPECT_EQ(lytProbeWorkgroupTemplates(16), (cannotOpen + general).c_str());
    EXPECT_EQ(lytProbeStartup(16), (cannotOpen + office + "16.0\\Word\\Options").c_str());
    registry.AddKey(HKEY_CURRENT_USER, general);
    EXPECT_EQ(lytProbeUserTemplates(16), "");
    registry.AddKey(HKEY_CURRENT_USER, office + "8.0\\Common\\FileNew");
    EXPECT_EQ(lytProbeUserTemplates(8), "");
    for (const size_t length : {399, 400})
    {
        const std::string text(length, 'x');
        SetUser(general, "UserTemplates", text);
        SetUser(subkey, "", text);
        EXPECT_EQ(lytProbeUserTemplates(16), (length < 400 ? text : "").c_str());
        EXPECT_EQ(lytProbeUserTemplates(8), (length < 400 ? text : "").c_str());
    }
    registry.Set(HKEY_CURRENT_USER, general, "UserTemplates", REG_SZ, "C:\\user"); // without its end
    EXPECT_EQ(lytProbeUserTemplates(16), "C:\\user");
    for (const int n : {5, 0, -1, 100})
    {
        EXPECT_EQ(lytProbeUserTemplates(n), "");
        for (const CString& text : {lytProbeWorkgroupTemplates(n), lytProbeStartup(n), lytProbeMacroSecurity(n)})
            EXPECT_EQ(text, (cannotOpen + "unsupported version").c_str());
    }
}

TEST_F(Word, SecurityIsReadFromTheKeyOfItsVersion)
{
    EXPECT_EQ(lytProbeMacroSecurity(11), (cannotOpen + level).c_str());
    registry.AddKey(HKEY_CURRENT_USER, level);
    EXPECT_EQ(lytProbeMacroSecurity(11), "0 UNKNOWN");
    registry.SetNumber(HKEY_CURRENT_USER, level, "Level", 2);
    EXPECT_EQ(lytProbeMacroSecurity(11), "2 MIDDLE");

    Install("C:\\lyt");
    EXPECT_EQ(lytProbeMacroSecurity(16), (cannotOpen + locations).c_str());
    Trust("Location0", "C:\\lyt\\sub");
    Trust("Location1", "");
    registry.AddKey(HKEY_CURRENT_USER, locations + "\\Location2");
    EXPECT_EQ(lytProbeMacroSecurity(16), "C:\\lyt\\ is NO trusted location");
    // A subkey whose name is too long is stepped over.
    Trust(std::string(70, 'a'), "D:\\");
    Trust("Trusted", "c:\\LYT");
    EXPECT_EQ(lytProbeMacroSecurity(16), "C:\\lyt\\ is a trusted location");
}

TEST_F(Word, LanguagesAreThoseOfTheCurrentVersionUpToAValueThatIsTooLarge)
{
    EXPECT_EQ(LanguageLines(), Texts());
    for (const char* program : {"Word", "Word.Application.16"})
    {
        SetCurrentVersion(program);
        EXPECT_EQ(LanguageLines(), Texts());
    }
    SetCurrentVersion("Word.Application.15");
    SetUser(Languages(15), "1031", "On");
    registry.SetNumber(HKEY_CURRENT_USER, Languages(15), "1033", 1);
    SetUser(Languages(15), "LangTuneUp", "Prohibited");
    EXPECT_EQ(LanguageLines(), (Texts{"de-de=On", "en-us=1", "LangTuneUp=Prohibited"}));
    SetCurrentVersion("Word.Application.16");
    SetUser(Languages(16), "1031", std::string(63, 'x'));
    SetUser(Languages(16), "en-us", std::string(64, 'x'));
    SetUser(Languages(16), "fr-fr", "On");
    EXPECT_EQ(LanguageLines(), (Texts{"1031=" + std::string(63, 'x')}));
}
