#include "sysinfo/word/EnabledLanguages.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

using namespace std::string_literals;

RegistryValue Text(const char* name, const std::string& data)
{
    return {name, 1, data};
}

RegistryValue Number(const char* name, const std::string& data)
{
    return {name, 4, data};
}

} // namespace

TEST(EnabledLanguages, BelongToTheVersionUpToItsFirstDot)
{
    EXPECT_EQ(VersionNumberOf("16.0 64 bit"), 16);
    EXPECT_EQ(VersionNumberOf("9.0"), 9);
    EXPECT_EQ(VersionNumberOf("12"), 12);
    EXPECT_EQ(VersionNumberOf(""), 0);
    EXPECT_EQ(VersionNumberOf("Word.0"), 0);
    EXPECT_EQ(VersionNumberOf("-3.0"), -3);
    EXPECT_EQ(VersionNumberOf("4294967312.0"), INT_MAX);
}

TEST(EnabledLanguages, HaveAnotherKeyFromVersion16On)
{
    EXPECT_EQ(EnabledLanguagesKey(15),
              "Software\\Microsoft\\Office\\15.0\\Common\\LanguageResources\\EnabledLanguages\\");
    EXPECT_EQ(EnabledLanguagesKey(16),
              "Software\\Microsoft\\Office\\16.0\\Common\\LanguageResources\\EnabledEditingLanguages\\");
}

TEST(EnabledLanguages, BelowVersion16AreShownByTheTagOfTheirIdentifier)
{
    EXPECT_EQ(EnabledLanguageLine(15, Text("1031", "On\0"s)), "de-de=On");
    EXPECT_EQ(EnabledLanguageLine(15, Text("1033abc", "On"s)), "en-us=On");
}

TEST(EnabledLanguages, BelowVersion16WithAnUnknownIdentifierStandForThemselves)
{
    EXPECT_EQ(EnabledLanguageLine(15, Text("1027", "On")), "1027=On");
    EXPECT_EQ(EnabledLanguageLine(15, Text("", "On")), "=On");
}

TEST(EnabledLanguages, BelowVersion16WithAnIdentifierOutOfRangeStandForThemselves)
{
    EXPECT_EQ(EnabledLanguageLine(15, Text("4294968329", "On")), "4294968329=On");
}

TEST(EnabledLanguages, BelowVersion16WithoutANumberStandForThemselves)
{
    EXPECT_EQ(EnabledLanguageLine(15, Text("PreviousInstallLanguage", "1031")), "PreviousInstallLanguage=1031");
}

TEST(EnabledLanguages, FromVersion16OnStandForThemselves)
{
    EXPECT_EQ(EnabledLanguageLine(16, Text("de-DE", "")), "de-DE=");
    EXPECT_EQ(EnabledLanguageLine(16, Text("1031", "On")), "1031=On");
}

TEST(EnabledLanguages, ShowNumbersAsSignedDecimals)
{
    EXPECT_EQ(EnabledLanguageLine(16, Number("de-de", "\x02\x00\x00\x00"s)), "de-de=2");
    EXPECT_EQ(EnabledLanguageLine(16, Number("de-de", "\xFF\xFF\xFF\xFF"s)), "de-de=-1");
    EXPECT_EQ(EnabledLanguageLine(16, Number("de-de", "\x02"s)), "de-de=2");
    EXPECT_EQ(EnabledLanguageLine(16, Number("de-de", "")), "de-de=0");
}

TEST(EnabledLanguages, ShowOtherDataUpToItsFirstNul)
{
    EXPECT_EQ(EnabledLanguageLine(16, {"x", 3, "ab\0cd"s}), "x=ab");
    EXPECT_EQ(EnabledLanguageLine(16, Text("x", "no end")), "x=no end");
}

TEST(LanguageTags, KnowTheseIdentifiersAndNoOther)
{
    static const struct
    {
        int locale;
        const char* tag;
    } known[] = {
        {1025, "ar-sa"}, {1026, "bg-bg"}, {1028, "zh-tw"},      {1029, "cs-cz"}, {1030, "da-dk"}, {1031, "de-de"},
        {1032, "el-gr"}, {1033, "en-us"}, {1035, "fi-fi"},      {1036, "fr-fr"}, {1037, "he-il"}, {1038, "hu-hu"},
        {1040, "it-it"}, {1041, "ja-jp"}, {1042, "ko-kr"},      {1043, "nl-nl"}, {1044, "nb-no"}, {1045, "pl-pl"},
        {1046, "pt-br"}, {1048, "ro-ro"}, {1049, "ru-ru"},      {1050, "hr-hr"}, {1051, "sk-sk"}, {1053, "sv-se"},
        {1054, "th-th"}, {1055, "tr-tr"}, {1057, "id-id"},      {1058, "uk-ua"}, {1060, "sl-si"}, {1061, "et-ee"},
        {1062, "lv-lv"}, {1063, "lt-lt"}, {1066, "vi-vn"},      {1081, "hi-in"}, {1086, "ms-my"}, {1087, "kk-kz"},
        {2052, "zh-cn"}, {2070, "pt-pt"}, {2074, "sr-latn-cs"}, {3082, "es-es"},
    };
    for (const auto& each : known)
    {
        CString tag;
        EXPECT_TRUE(FindLanguageTag(each.locale, tag)) << each.locale;
        EXPECT_EQ(tag, each.tag);
    }
    EXPECT_EQ(lytLanguageTags.GetCount(), static_cast<int>(std::size(known)));

    CString tag = "kept";
    EXPECT_FALSE(FindLanguageTag(1027, tag));
    EXPECT_EQ(tag, "kept");
}
