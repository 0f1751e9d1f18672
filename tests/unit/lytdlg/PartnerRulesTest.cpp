// What the rules say about the libraries that a description calls, with a folder of such libraries.
#include "ExampleFindings.h"
#include "LibraryFile.h"

#include <gtest/gtest.h>

using lytdlg::FindIn;

namespace
{

constexpr const char* filled = "$VALUES\n    Parts = FILLEDBY, lytdata, OpenMarked, NextItem";
constexpr const char* pressed = "$LAYOUT Example\n    PushButton 520, 12, 90, 21, \"Remove\", .More\n"
                                "$VALUES\n    More: ACTION = other.dll, Open, Out, Back\n"
                                "$INPUT, Back\n    Start: (999, End = Name\n$OUTPUT, Out\n    (\"%s\", Name)";
const std::string library = "=> 45:23+7 partner-form: lytdata.dll ";

} // namespace

TEST(PartnerRules, SayNothingOfOtherLibrariesWithoutTheirFolders)
{
    EXPECT_EQ(FindIn(filled).text, "");
    EXPECT_EQ(FindIn(pressed).text, "");
}

TEST(PartnerRules, FindALibraryInNoFolder)
{
    const TestFolder folder;
    EXPECT_EQ(FindIn(filled, {folder.Path()}).text,
              "=> 45:23+7 partner-library: lytdata.dll is in none of the folders for libraries\n"
              "   check its name, or give its folder with --partners\n");
    EXPECT_EQ(FindIn(pressed, {folder.Path()}).text,
              "=> 46:20+9 partner-library: other.dll is in none of the folders for libraries (message 233)\n"
              "   check its name, or give its folder with --partners\n");
}

TEST(PartnerRules, FindFunctionsThatALibraryDoesNotHave)
{
    const TestFolder folder;
    const auto with = [&](const std::vector<std::string>& functions)
    {
        folder.Write("LytData.DLL", LibraryFile(functions));
        return FindIn(filled, {folder.Path()}).text;
    };
    const std::string finding = "=> 45:32+10 partner-function: lytdata.dll has no function \"OpenMarked\"\n";
    EXPECT_EQ(with({"NextItem", "OpenMarked"}), "");
    EXPECT_EQ(with({"NextItem", "OpenMarkd"}), finding + "   did you mean \"OpenMarkd\"?\n");
    EXPECT_EQ(with({"NextItem", "?OpenMarked@@YAXPEBD@Z"}),
              finding + "   \"?OpenMarked@@YAXPEBD@Z\" is that function of C++; declare it extern \"C\"\n");
    EXPECT_EQ(with({"NextItem", "_Z10OpenMarkedPKc"}),
              finding + "   \"_Z10OpenMarkedPKc\" is that function of C++; declare it extern \"C\"\n");
}

TEST(PartnerRules, FindALibraryThatCannotBeLoaded)
{
    const TestFolder folder;
    const auto with = [&](const std::string& bytes)
    {
        folder.Write("lytdata.dll", bytes);
        return FindIn(filled, {folder.Path()}).text;
    };
    EXPECT_EQ(with(LibraryFile({"NextItem", "OpenMarked"}, machine32)),
              library + "is no 64-bit library\n   build it for 64 bits\n");
    EXPECT_EQ(with("a text"), library + "is no library, or is damaged\n   build it for 64 bits\n");

    folder.Write("own.dll", LibraryFile({"Own"}, machine64, {"libstdc++-6.dll", "lyt64.dll"}));
    const std::string needy = LibraryFile({"NextItem", "OpenMarked"}, machine64, {"kernel32.dll", "own.dll"});
    EXPECT_EQ(with(needy), library +
                               "cannot be loaded: it needs libstdc++-6.dll, which Windows does not find\n   link it "
                               "statically, so that it needs nothing but Windows, or copy what it needs beside the "
                               "word processor's program\n");
    folder.Write("libstdc++-6.dll", LibraryFile({"Throw"}));
    EXPECT_EQ(with(needy), "");
}
