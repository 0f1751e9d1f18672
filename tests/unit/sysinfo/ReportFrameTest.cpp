#include "sysinfo/frame/ReportFrame.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace
{

std::string Joined(const std::vector<CString>& texts)
{
    std::string joined;
    for (const CString& text : texts)
        joined += std::string(text.GetString()) + "|";
    return joined;
}

} // namespace

TEST(SearchDirectories, AppendsTheInstallationDirectoryWithoutItsSeparator)
{
    EXPECT_EQ(Joined(SearchDirectories("C:\\Windows;C:\\Tools\\", "C:\\Lyt\\")), "c:\\windows|c:\\tools\\|c:\\lyt|");
}

TEST(SearchDirectories, AppendsNothingThatThePathAlreadyHoldsInAnyCase)
{
    EXPECT_EQ(Joined(SearchDirectories("C:\\WINDOWS;c:\\lYT", "C:\\Lyt\\")), "c:\\windows|c:\\lyt|");
    EXPECT_EQ(Joined(SearchDirectories("C:\\LytTools\\bin", "C:\\Lyt\\")), "c:\\lyttools\\bin|");
}

TEST(SearchDirectories, EmptyPieceEndsTheWalk)
{
    EXPECT_EQ(Joined(SearchDirectories("C:\\a;;C:\\b", "C:\\b")), "c:\\a|;c:\\b|");
    EXPECT_EQ(Joined(SearchDirectories(";C:\\a;C:\\b", "C:\\b")), ";c:\\a;c:\\b|");
}

TEST(SearchDirectories, SeparatorAtTheEndAddsNoPiece)
{
    EXPECT_EQ(Joined(SearchDirectories("C:\\a;C:\\b;", "C:\\b\\")), "c:\\a|c:\\b|");
    EXPECT_EQ(Joined(SearchDirectories("C:\\a;", "C:\\b\\")), "c:\\a|;c:\\b|");
}

TEST(SearchDirectories, TakesTheWordsForAMissingPathAsADirectory)
{
    EXPECT_EQ(Joined(SearchDirectories("Value not set.", "C:\\Lyt\\")), "value not set.|c:\\lyt|");
}

TEST(SearchDirectories, OnlyOneSeparatorIsCutOff)
{
    EXPECT_EQ(Joined(SearchDirectories("C:\\a", "C:\\b\\\\")), "c:\\a|c:\\b\\|");
    EXPECT_EQ(Joined(SearchDirectories("C:\\a", "\\")), "c:\\a|");
}

TEST(IniAccess, WordsEachReason)
{
    EXPECT_EQ(IniAccessLine(EACCES, "C:\\lyt.ini"), "Error: Access denied: C:\\lyt.ini");
    EXPECT_EQ(IniAccessLine(ENOENT, "C:\\lyt.ini"), "Error: File name or path not found: C:\\lyt.ini");
    EXPECT_EQ(IniAccessLine(EINVAL, "C:\\lyt.ini"), "Internal Error checking LYT.INI: C:\\lyt.ini");
}

TEST(VersionTexts, AreJoinedByASemicolonAndABlank)
{
    EXPECT_EQ(Joined(VersionTexts("")), "");
    EXPECT_EQ(Joined(VersionTexts("16.0")), "16.0|");
    EXPECT_EQ(Joined(VersionTexts("8.0; 16.0; 16.0")), "8.0|16.0|16.0|");
}
