// The lines on the word processor, and on the program that gathers them.
#include "sysinfo/frame/ProgramKind.h"
#include "sysinfo/frame/ReportFrame.h"
#include "sysinfo/word/EnabledLanguages.h"
#include "sysinfo/word/MacroSecurity.h"
#include "sysinfo/word/WordCurrent.h"
#include "sysinfo/word/WordDirectories.h"
#include "sysinfo/word/WordVersions.h"

#include "unit/Readings.h"

#include <climits>

namespace
{

using namespace std::string_literals;

const std::string unsupported = "Cannot open registry key unsupported version";

// "key|name" of a value, "key|name|" of a subkey, "none" for a version without the directory.
std::string Told(const std::optional<RegistryPlace>& place)
{
    if (!place)
        return "none";
    return (place->key + "|" + place->name + (place->kind == RegistryPlace::Kind::Subkey ? "|" : "")).GetString();
}

std::string Places(int n)
{
    return Told(UserTemplatesPlace(n)) + "\n" + Told(WorkgroupTemplatesPlace(n)) + "\n" + Told(StartupPlace(n));
}

std::string Closed(int n)
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

bool IsTrusted(const std::string& directory, std::vector<CString> paths, int n = 16)
{
    MacroSecurityFacts facts;
    facts.n = n;
    facts.isKeyOpen = true;
    facts.installDirectory = directory.c_str();
    facts.paths = std::move(paths);
    const std::string text = MacroSecurityText(facts).GetString();
    EXPECT_TRUE(text == directory + " is a trusted location" || text == directory + " is NO trusted location") << text;
    return text == directory + " is a trusted location";
}

} // namespace

TEST(EnabledLanguages, AreShownByTheTagOfTheirIdentifierBelowVersion16)
{
    static const struct
    {
        int n;
        RegistryValue value;
        const char* line;
    } cases[] = {
        {15, {"1031", 1, "On\0"s}, "de-de=On"},
        {15, {"1033abc", 1, "On"}, "en-us=On"},
        {15, {"1027", 1, "On"}, "1027=On"},
        {15, {"", 1, "On"}, "=On"},
        {15, {"4294968329", 1, "On"}, "4294968329=On"},
        {15, {"PreviousInstallLanguage", 1, "1031"}, "PreviousInstallLanguage=1031"},
        {16, {"de-DE", 1, ""}, "de-DE="},
        {16, {"1031", 1, "On"}, "1031=On"},
        {16, {"de-de", 4, "\x02\x00\x00\x00"s}, "de-de=2"},
        {16, {"de-de", 4, "\xFF\xFF\xFF\xFF"s}, "de-de=-1"},
        {16, {"de-de", 4, "\x02"s}, "de-de=2"},
        {16, {"de-de", 4, ""}, "de-de=0"},
        {16, {"x", 3, "ab\0cd"s}, "x=ab"},
        {16, {"x", 1, "no end"}, "x=no end"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(EnabledLanguageLine(c.n, c.value), c.line);
    EXPECT_EQ(EnabledLanguagesKey(15),
              "Software\\Microsoft\\Office\\15.0\\Common\\LanguageResources\\EnabledLanguages\\");
    EXPECT_EQ(EnabledLanguagesKey(16),
              "Software\\Microsoft\\Office\\16.0\\Common\\LanguageResources\\EnabledEditingLanguages\\");
    ExpectEach([](const std::string& text) { return std::to_string(VersionNumberOf(text.c_str())); },
               {{"16.0 64 bit", "16"},
                {"9.0", "9"},
                {"12", "12"},
                {"", "0"},
                {"Word.0", "0"},
                {"-3.0", "-3"},
                {"4294967312.0", std::to_string(INT_MAX)}});
}

TEST(LanguageTags, KnowTheseIdentifiersAndNoOther)
{
    CString tag = "kept";
    EXPECT_FALSE(FindLanguageTag(1027, tag));
    EXPECT_EQ(tag, "kept");
    const std::vector<TextCase> known = ReadingsOf("sysinfo/names.cases", "LanguageTag");
    for (const TextCase& each : known)
    {
        EXPECT_TRUE(FindLanguageTag(std::stoi(each.given), tag)) << each.given;
        EXPECT_EQ(tag, each.made.c_str());
    }
    EXPECT_EQ(lytLanguageTags.GetCount(), static_cast<int>(known.size()));
}

TEST(MacroSecurity, IsALevelOrATrustedLocationOrFixedWords)
{
    for (int n = -1; n <= 101; ++n)
    {
        SCOPED_TRACE(n);
        const std::string key = R"(Software\Microsoft\Office\)" + std::to_string(n) + R"(.0\Word\Security)";
        const std::string keyOfLocations = key + R"(\Trusted Locations)";
        if (n >= 9 && n <= 11)
        {
            EXPECT_EQ(OfLevel(n, 3), "3 HIGH");
            EXPECT_STREQ(MacroSecurityKey(n), key.c_str());
            EXPECT_EQ(Closed(n), "Cannot open registry key " + key);
        }
        else if (n >= 12 && n <= 99)
        {
            EXPECT_TRUE(IsTrusted("C:\\lyt\\", {"C:\\lyt\\"}, n));
            EXPECT_STREQ(MacroSecurityKey(n), keyOfLocations.c_str());
            EXPECT_EQ(Closed(n), "Cannot open registry key " + keyOfLocations);
        }
        else
        {
            const char* const old = n == 6 ? "6.0" : n == 7 ? "7.0/95" : n == 8 ? "8.0/97" : nullptr;
            EXPECT_EQ(Closed(n), old != nullptr ? std::string("N/A in Word ") + old : unsupported);
            EXPECT_EQ(OfLevel(n, 3), Closed(n));
            EXPECT_EQ(MacroSecurityKey(n), "");
        }
    }
}

TEST(MacroSecurity, WordsEachLevelAndComparesLocationsWithoutCaseAndWithTheirSeparator)
{
    static const char* const levels[] = {"0 UNKNOWN", "1 LOW", "2 MIDDLE", "3 HIGH", "4 VERY HIGH", "5 UNKNOWN"};
    for (unsigned level = 0; level < std::size(levels); ++level)
        EXPECT_EQ(OfLevel(9, level), levels[level]);
    EXPECT_EQ(OfLevel(9, 4294967295U), "4294967295 UNKNOWN");

    EXPECT_TRUE(IsTrusted("C:\\lyt\\", {"D:\\", "C:\\lyt\\"}));
    EXPECT_TRUE(IsTrusted("C:\\lyt\\", {"c:\\LYT"}));
    EXPECT_TRUE(IsTrusted("\\", {"\\"}));
    EXPECT_FALSE(IsTrusted("\\", {""})) << "an empty location trusts nothing";
    EXPECT_FALSE(IsTrusted("C:\\lyt\\", {"D:\\", "C:\\lyt\\sub\\"}));
    EXPECT_FALSE(IsTrusted("C:\\lyt\\", {"C:\\ly"}));
    EXPECT_FALSE(IsTrusted("C:\\lyt\\", {}));
}

TEST(WordCurrent, IsTheLastPieceOfTheRegisteredNameWithAZeroAndItsBitsFromVersion14On)
{
    static const struct
    {
        const char* program;
        std::optional<unsigned> kind;
        const char* text;
    } cases[] = {
        {"Word.Application.11", 6U, "11.0"},
        {"Word.Application.13", 6U, "13.0"},
        {"Word.Application.14", 6U, "14.0 64 bit"},
        {"Word.Application.14", 0U, "14.0 32 bit"},
        {"Word.Application.16", 6U, "16.0 64 bit"},
        {"Word.Application.16", 1U, "16.0 32 bit"},
        {"Word.Application.16", {}, "16.0"},
        {"Word", 6U, "Word.0"},
        {"Word.4294967304", 6U, "4294967304.0 64 bit"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(WordCurrentText({c.program, c.kind}), c.text);
    EXPECT_EQ(WordCurrentText({}), "");
    ExpectEach([](const std::string& program) { return std::string(WordVersionOf(program.c_str())); },
               {{"Word.Document.8", "8.0"}, {"Word.", ".0"}, {"16", "16.0"}, {"Word", "Word.0"}, {"", ".0"}});
}

TEST(ProgramKind, IsServerOrFrontEndWithItsBits)
{
    EXPECT_EQ(ProgramKindText({true, 6U}), "LYT Server 64 bit");
    EXPECT_EQ(ProgramKindText({true, {}}), "LYT Server");
    EXPECT_EQ(ProgramKindText({false, 0U}), "LYT Front-End 32 bit");
    EXPECT_EQ(ProgramKindText({false, {}}), "LYT Front-End");
    for (const unsigned kind : {0U, 1U, 2U, 3U, 4U, 5U, 7U})
        EXPECT_EQ(BitsText(kind), " 32 bit");
    // Only the program for information tells its kind, by any part of its path but the beginning.
    EXPECT_TRUE(TellsItsKind("c:\\lyt\\lytinfo64.exe"));
    EXPECT_TRUE(TellsItsKind("c:\\lytinfo\\other.exe"));
    for (const char* name : {"c:\\lyt\\other.exe", "", "lytinfo.exe"})
        EXPECT_FALSE(TellsItsKind(name)) << name;
}

TEST(WordDirectories, StandWhereTheirVersionPutsThem)
{
    EXPECT_EQ(Places(6), R"(Software\Microsoft\Word\6.0\Options|USER-DOT-PATH
Software\Microsoft\Word\6.0\Options|WORKGROUP-DOT-PATH
Software\Microsoft\Word\6.0\Options|STARTUP-PATH)");
    EXPECT_EQ(Places(7), R"(Software\Microsoft\Microsoft Office\95\FileNew|LocalTemplates|
Software\Microsoft\Microsoft Office\95\FileNew|SharedTemplates|
Software\Microsoft\Word\7.0\Options|STARTUP-PATH)");
    EXPECT_EQ(Places(8), R"(Software\Microsoft\Office\8.0\Common\FileNew|LocalTemplates|
Software\Microsoft\Office\8.0\Common\FileNew|SharedTemplates|
Software\Microsoft\Office\8.0\Word\Options|STARTUP-PATH)");
    for (int n = 9; n <= 99; ++n)
    {
        const std::string office = R"(Software\Microsoft\Office\)" + std::to_string(n) + ".0\\";
        EXPECT_EQ(Places(n), office + "Common\\General|UserTemplates\n" + office + "Common\\General|SharedTemplates\n" +
                                 office + "Word\\Options|STARTUP-PATH");
    }
    for (const int n : {-1, 0, 5, 100, INT_MAX})
        EXPECT_EQ(Places(n), "none\nnone\nnone") << n;
    EXPECT_EQ(CannotOpenText("Software\\A Key"), "Cannot open registry key Software\\A Key");
    EXPECT_EQ(UnsupportedVersionText(), unsupported.c_str());
}

TEST(WordVersions, AreThoseOfBothKeysAndOfTheOfficeKeyUpToAnyNameWithoutADigit)
{
    static const struct
    {
        WordVersionsFacts facts;
        const char* text;
    } cases[] = {
        {{{"6.0", "7.0"}, {"7.0", "16.0"}}, "6.0; 7.0; 7.0; 16.0"},
        {{{}, {"16.0"}}, "16.0"},
        {{{"6.0"}, {}}, "6.0"},
        {{}, ""},
        {{{}, {"15.0", "16.0", "Common", "9.0"}}, "15.0; 16.0"},
        {{{"6.0"}, {"Common", "15.0"}}, "6.0"},
        {{{}, {"", "15.0"}}, ""},
        {{{}, {"/", "15.0"}}, ""},
        {{{}, {":", "15.0"}}, ""},
        {{{"Common", "6.0"}, {}}, "Common; 6.0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(WordVersionsText(c.facts), c.text);
}
