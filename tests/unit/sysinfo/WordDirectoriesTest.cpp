#include "sysinfo/word/WordDirectories.h"
#include "sysinfo/frame/ReportFrame.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// "key|name" of a value, "key|name|" of a subkey, "none" for a version without the directory.
std::string Told(const std::optional<RegistryPlace>& place)
{
    if (!place)
        return "none";
    const char* const end = place->kind == RegistryPlace::Kind::Subkey ? "|" : "";
    return (place->key + "|" + place->name + end).GetString();
}

std::string Key(int n, const std::string& rest)
{
    return "Software\\Microsoft\\Office\\" + std::to_string(n) + ".0\\" + rest;
}

} // namespace

TEST(WordDirectories, OfVersion6StandInItsOptions)
{
    EXPECT_EQ(Told(UserTemplatesPlace(6)), R"(Software\Microsoft\Word\6.0\Options|USER-DOT-PATH)");
    EXPECT_EQ(Told(WorkgroupTemplatesPlace(6)), R"(Software\Microsoft\Word\6.0\Options|WORKGROUP-DOT-PATH)");
    EXPECT_EQ(Told(StartupPlace(6)), R"(Software\Microsoft\Word\6.0\Options|STARTUP-PATH)");
}

TEST(WordDirectories, OfVersion7StandInSubkeysOfFileNewAndInItsOptions)
{
    EXPECT_EQ(Told(UserTemplatesPlace(7)), R"(Software\Microsoft\Microsoft Office\95\FileNew|LocalTemplates|)");
    EXPECT_EQ(Told(WorkgroupTemplatesPlace(7)), R"(Software\Microsoft\Microsoft Office\95\FileNew|SharedTemplates|)");
    EXPECT_EQ(Told(StartupPlace(7)), R"(Software\Microsoft\Word\7.0\Options|STARTUP-PATH)");
}

TEST(WordDirectories, OfVersion8StandInSubkeysOfFileNewAndInTheOfficeOptions)
{
    EXPECT_EQ(Told(UserTemplatesPlace(8)), R"(Software\Microsoft\Office\8.0\Common\FileNew|LocalTemplates|)");
    EXPECT_EQ(Told(WorkgroupTemplatesPlace(8)), R"(Software\Microsoft\Office\8.0\Common\FileNew|SharedTemplates|)");
    EXPECT_EQ(Told(StartupPlace(8)), R"(Software\Microsoft\Office\8.0\Word\Options|STARTUP-PATH)");
}

TEST(WordDirectories, OfVersions9To99StandInGeneralAndInTheOfficeOptions)
{
    for (int n = 9; n <= 99; ++n)
    {
        EXPECT_EQ(Told(UserTemplatesPlace(n)), Key(n, R"(Common\General|UserTemplates)"));
        EXPECT_EQ(Told(WorkgroupTemplatesPlace(n)), Key(n, R"(Common\General|SharedTemplates)"));
        EXPECT_EQ(Told(StartupPlace(n)), Key(n, R"(Word\Options|STARTUP-PATH)"));
    }
}

TEST(WordDirectories, OfOtherVersionsAreNone)
{
    for (const int n : {-1, 0, 5, 100, 2147483647})
    {
        EXPECT_EQ(Told(UserTemplatesPlace(n)), "none");
        EXPECT_EQ(Told(WorkgroupTemplatesPlace(n)), "none");
        EXPECT_EQ(Told(StartupPlace(n)), "none");
    }
}

TEST(WordDirectories, ThatCannotBeReadGiveWordsInstead)
{
    EXPECT_EQ(CannotOpenText("Software\\A Key"), "Cannot open registry key Software\\A Key");
    EXPECT_EQ(UnsupportedVersionText(), "Cannot open registry key unsupported version");
}
