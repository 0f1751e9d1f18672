#include "ProbeFixture.h"

namespace
{

class EnabledLanguages : public ProbeFixture
{
protected:
    static std::string Key(int n)
    {
        return "Software\\Microsoft\\Office\\" + std::to_string(n) + ".0\\Common\\LanguageResources\\" +
               (n < 16 ? "EnabledLanguages" : "EnabledEditingLanguages");
    }
    Texts Lines() const
    {
        TakeLines();
        lytProbeEnabledLanguages();
        return TakeLines();
    }
};

} // namespace

TEST_F(EnabledLanguages, OfVersion15AreNamedByTheirTags)
{
    SetCurrentVersion("Word.Application.15");
    registry.SetText(HKEY_CURRENT_USER, Key(15), "1031", "On");
    registry.SetNumber(HKEY_CURRENT_USER, Key(15), "1033", 1);
    registry.SetText(HKEY_CURRENT_USER, Key(15), "4711", "Off");
    registry.SetText(HKEY_CURRENT_USER, Key(15), "LangTuneUp", "Prohibited");
    EXPECT_EQ(Lines(), (Texts{"de-de=On", "en-us=1", "4711=Off", "LangTuneUp=Prohibited"}));
}

TEST_F(EnabledLanguages, OfVersion16StandForThemselves)
{
    SetCurrentVersion("Word.Application.16");
    SetWordProgram(OwnFile());
    registry.SetText(HKEY_CURRENT_USER, Key(15), "1031", "On");
    registry.SetNumber(HKEY_CURRENT_USER, Key(16), "de-de", 4);
    registry.SetText(HKEY_CURRENT_USER, Key(16), "1033", "On");
    EXPECT_EQ(Lines(), (Texts{"1033=On", "de-de=4"}));
}

TEST_F(EnabledLanguages, EndAtAValueThatIsTooLarge)
{
    SetCurrentVersion("Word.Application.16");
    registry.SetText(HKEY_CURRENT_USER, Key(16), "de-de", std::string(63, 'x'));
    registry.SetText(HKEY_CURRENT_USER, Key(16), "en-us", std::string(64, 'x'));
    registry.SetText(HKEY_CURRENT_USER, Key(16), "fr-fr", "On");
    EXPECT_EQ(Lines(), (Texts{"de-de=" + std::string(63, 'x')}));
}

TEST_F(EnabledLanguages, AreNoneWithoutAVersionOrItsKey)
{
    EXPECT_EQ(Lines(), Texts());
    SetCurrentVersion("Word");
    EXPECT_EQ(Lines(), Texts());
    SetCurrentVersion("Word.Application.16");
    EXPECT_EQ(Lines(), Texts());
}
