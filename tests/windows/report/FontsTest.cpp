#include "ReportTest.h"

#include "support/ImportHook.h"

#include <algorithm>
#include <cstring>

namespace
{

const std::string rule = "  " + std::string(81, '-');

std::string Column(const std::string& text)
{
    return text + std::string(text.size() < 30 ? 30 - text.size() : 0, ' ');
}

std::string NameLine(const std::string& name)
{
    return "  " + Column(name) + " | " + Column("") + " |      ";
}

// What the platform was asked for.
std::vector<LOGFONTW> asked;

int WINAPI NoteFont(HDC /*context*/, LOGFONTW* font, FONTENUMPROCW /*enumerate*/, LPARAM /*data*/, DWORD flags)
{
    EXPECT_EQ(flags, 0U);
    asked.push_back(*font);
    return 1;
}

class Fonts : public ReportTest
{
protected:
    Texts FontLines() { return LinesBetween(Report(), "Fonts Information from ", "LOCALE."); }
};

class Locale : public ReportTest
{
};

} // namespace

TEST_F(Fonts, MissingSectionEndsTheirPartOnly)
{
    WriteIni("[other]\r\na=b\r\n");
    const Texts lines = Report();
    const size_t first = FindLine(lines, "Fonts Information from " + folder.Path() + "\\lyt.ini");
    ASSERT_LT(first + 2, lines.size());
    EXPECT_EQ(lines[first + 1], "Section is EMPTY or not found!");
    EXPECT_TRUE(lines[first + 2].starts_with("LOCALE.SYSTEM.ANSICODEPAGE        = ")) << lines[first + 2];
}

TEST_F(Fonts, KeysStandAheadOfTheTable)
{
    WriteIni("[FONTS]\r\nText=No Such Font\r\nEmpty=\r\nBare\r\n");
    EXPECT_EQ(FontLines(), (Texts{"  Text=No Such Font", "  Empty=", "  Bare=", rule,
                                  "  " + Column("Font Family") + " | " + Column("Font Name") + " | Character set", rule,
                                  NameLine("No Such Font"), rule}));
}

TEST_F(Fonts, InstalledFontShowsItsStylesAndCharacterSets)
{
    WriteIni("[FONTS]\r\nText=Tahoma\r\n");
    const Texts lines = FontLines();
    ASSERT_GT(lines.size(), 6U);
    EXPECT_EQ(lines[4], NameLine("Tahoma"));
    EXPECT_EQ(lines[5], "  " + Column("") + " | " + Column("Tahoma") + " | ANSI_CHARSET");
    EXPECT_TRUE(HasLine(lines, "  " + Column("") + " | " + Column("Tahoma") + " | RUSSIAN_CHARSET"));
    EXPECT_TRUE(HasLine(lines, "  " + Column("") + " | " + Column("Tahoma Bold") + " | ANSI_CHARSET"));
    EXPECT_EQ(lines.back(), rule);
}

TEST_F(Fonts, FontNamedTwiceIsListedOnce)
{
    WriteIni("[FONTS]\r\nText=Tahoma,Tahoma\r\nHead=Tahoma\r\n");
    const Texts lines = FontLines();
    EXPECT_EQ(CountLines(lines, NameLine("Tahoma")), 1U);
    EXPECT_EQ(CountLines(lines, "  " + Column("") + " | " + Column("Tahoma") + " | ANSI_CHARSET"), 1U);
}

TEST_F(Fonts, BlankBehindACommaHidesTheFont)
{
    WriteIni("[FONTS]\r\nText=No Such Font, Tahoma\r\n");
    const Texts lines = FontLines();
    EXPECT_TRUE(HasLine(lines, NameLine(" Tahoma")));
    EXPECT_FALSE(HasLine(lines, NameLine("Tahoma")));
}

TEST_F(Fonts, NamesStandInTheOrderOfTheirBytes)
{
    WriteIni("[FONTS]\r\nText=no b,No c,no B,No a\r\n");
    const Texts lines = FontLines();
    EXPECT_EQ(Texts(lines.begin() + 3, lines.end()), (Texts{rule, NameLine("No a"), rule, NameLine("No c"), rule,
                                                            NameLine("no B"), rule, NameLine("no b"), rule}));
}

TEST_F(Fonts, NameIsCutTo31CharactersForTheSearchOnly)
{
    const std::string name = "Tahoma" + std::string(30, 'x');
    WriteIni("[FONTS]\r\nText=" + name + "\r\n");
    const Texts lines = FontLines();
    EXPECT_EQ(lines[4], NameLine(name));
    EXPECT_EQ(lines.size(), 6U);
}

TEST_F(Fonts, AskForTheFirst31CharactersOfANameInAnyCharacterSet)
{
    const ImportHook hook(GetModuleHandleA("lyt64"), "EnumFontFamiliesExW", NoteFont);
    const std::string name = "0123456789012345678901234567890";
    for (const char* more : {"", "x", "xy", "xyz"})
    {
        SCOPED_TRACE(more);
        asked.clear();
        WriteIni("[FONTS]\r\nText=" + name + more + "\r\n");
        Report();
        ASSERT_EQ(asked.size(), 1U);
        LOGFONTW wanted = {};
        wanted.lfCharSet = DEFAULT_CHARSET;
        std::copy(name.begin(), name.end(), wanted.lfFaceName);
        EXPECT_EQ(std::memcmp(&asked.front(), &wanted, sizeof wanted), 0);
    }
}

TEST_F(Fonts, EmptyPieceNamesNoFont)
{
    WriteIni("[FONTS]\r\nText=,No Such Font,\r\n");
    EXPECT_EQ(FontLines().size(), 6U);
}

TEST_F(Locale, ShowsWhatThePlatformTellsUnderLabelsThatStandTwice)
{
    const auto text = [](LCID locale, LCTYPE type)
    {
        char value[128] = "";
        GetLocaleInfoA(locale, type, value, sizeof value);
        return std::string(value);
    };
    const Texts lines = Report();
    const size_t first = FindLine(lines, "LOCALE.");
    ASSERT_LT(first + 17, lines.size());
    const LCID user = LOCALE_USER_DEFAULT;
    EXPECT_EQ(lines[first], "LOCALE.SYSTEM.ANSICODEPAGE        = " + text(LOCALE_SYSTEM_DEFAULT, 4100));
    EXPECT_EQ(lines[first + 1], "LOCALE.SYSTEM.CODEPAGE            = " + text(LOCALE_SYSTEM_DEFAULT, 11));
    EXPECT_EQ(lines[first + 2], "LOCALE.USER.ANSICODEPAGE          = " + text(user, 4100));
    EXPECT_EQ(lines[first + 3], "LOCALE.USER.CODEPAGE              = " + text(user, 11));
    EXPECT_EQ(lines[first + 4], "LOCALE.USER.LANGUAGE              = " + text(user, LOCALE_SLANGUAGE));
    EXPECT_EQ(lines[first + 5], "LOCALE.USER.COUNTRY (region code) = " + text(user, LOCALE_ICOUNTRY));
    EXPECT_EQ(lines[first + 6], "LOCALE.USER.COUNTRY               = " + text(user, LOCALE_IDEFAULTCOUNTRY));
    EXPECT_EQ(lines[first + 7], "LOCALE.USER.EBCDICCODEPAGE        = " + text(user, 4114));
    EXPECT_EQ(lines[first + 8], "LOCALE.USER.LANGUAGE              = " + text(user, LOCALE_ILANGUAGE));
    EXPECT_EQ(lines[first + 9], "LOCALE.USER.SABBREVCTRY           = " + text(user, LOCALE_SABBREVCTRYNAME));
    EXPECT_EQ(lines[first + 10], "LOCALE.USER.COUNTRY               = " + text(user, LOCALE_SCOUNTRY));
    EXPECT_EQ(lines[first + 11], "LOCALE.USER.ENGCOUNTRY            = " + text(user, LOCALE_SENGCOUNTRY));
    EXPECT_EQ(lines[first + 12], "LOCALE.USER.ENGLANGUAGE           = " + text(user, LOCALE_SENGLANGUAGE));
    EXPECT_EQ(lines[first + 13], "LOCALE.USER.ISO3166CTRY           = " + text(user, LOCALE_SISO3166CTRYNAME));
    EXPECT_EQ(lines[first + 14], "LOCALE.USER.ISO639LANG            = " + text(user, LOCALE_SISO639LANGNAME));
    EXPECT_EQ(lines[first + 15], "LOCALE.USER.NATIVECTRY            = " + text(user, LOCALE_SNATIVECTRYNAME));
    EXPECT_EQ(lines[first + 16], "LOCALE.USER.NATIVELANG            = " + text(user, LOCALE_SNATIVELANGNAME));
    EXPECT_EQ(lines[first + 17], "Windows installed languages:");
}

TEST_F(Locale, TellsOfEachLanguageGroupWhetherItIsInstalled)
{
    const Texts lines = LinesBetween(Report(), "Windows installed languages:", "Office enabled languages:");
    ASSERT_EQ(lines.size(), 17U);
    EXPECT_EQ(lines.front(), IsValidLanguageGroup(1, LGRPID_INSTALLED)
                                 ? "Language WESTERN_EUROPE is installed in Windows"
                                 : "Language WESTERN_EUROPE not installed in Windows, see ZVK note 939928");
    EXPECT_TRUE(lines.back().starts_with("Language ARMENIAN ")) << lines.back();
}
