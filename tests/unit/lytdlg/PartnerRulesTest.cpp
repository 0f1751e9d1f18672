// What the rules say about the libraries that a description calls.
#include "JudgedExample.h"
#include "LibraryFile.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{

constexpr const char* filled = "$VALUES\n    Parts = FILLEDBY, lytdata, OpenMarked, NextItem";
constexpr const char* pressed = "$LAYOUT Example\n    PushButton 520, 12, 90, 21, \"Remove\", .More\n"
                                "$VALUES\n    More: ACTION = other.dll, Open, Out, Back\n"
                                "$INPUT, Back\n    Start: (999, End = Name\n$OUTPUT, Out\n    (\"%s\", Name)";

} // namespace

TEST(PartnerRules, SayNothingOfOtherLibrariesWithoutTheirFolders)
{
    EXPECT_EQ(TextsOfFindings(filled), "");
    EXPECT_EQ(TextsOfFindings(pressed), "");
}

TEST(PartnerRules, FindLibraryAndFunctionsWhateverTheCaseOfTheFile)
{
    const TestFolder folder;
    folder.Write("LytData.DLL", LibraryFile({"NextItem", "OpenMarked"}));
    EXPECT_EQ(TextsOfFindings(filled, {folder.Path()}), "");
}

TEST(PartnerRules, TellOfALibraryThatIsInNoFolder)
{
    const TestFolder folder;
    EXPECT_EQ(TextsOfFindings(filled, {folder.Path()}),
              R"(example.dlg:45:23: warning partner-library: lytdata.dll is in none of the folders for libraries
        Parts = FILLEDBY, lytdata, OpenMarked, NextItem
                          ^~~~~~~
    hint: check its name, or give its folder with --partners
)");
    EXPECT_EQ(
        TextsOfFindings(pressed, {folder.Path()}),
        R"(example.dlg:46:20: warning partner-library: other.dll is in none of the folders for libraries (message 233)
        More: ACTION = other.dll, Open, Out, Back
                       ^~~~~~~~~
    hint: check its name, or give its folder with --partners
)");
}

TEST(PartnerRules, TellOfALibraryThatNeedsAnotherOne)
{
    const TestFolder folder;
    folder.Write("lytdata.dll", LibraryFile({"NextItem", "OpenMarked"}, machine64, {"kernel32.dll", "own.dll"}));
    folder.Write("own.dll", LibraryFile({"Own"}, machine64, {"libstdc++-6.dll", "lyt64.dll"}));
    EXPECT_EQ(
        TextsOfFindings(filled, {folder.Path()}),
        "example.dlg:45:23: warning partner-form: lytdata.dll cannot be loaded: it needs libstdc++-6.dll, which "
        "Windows does not find\n"
        "        Parts = FILLEDBY, lytdata, OpenMarked, NextItem\n"
        "                          ^~~~~~~\n"
        "    hint: link it statically, so that it needs nothing but Windows, or copy what it needs beside the word "
        "processor's program\n");
    folder.Write("libstdc++-6.dll", LibraryFile({"Throw"}));
    EXPECT_EQ(TextsOfFindings(filled, {folder.Path()}), "");
}

TEST(PartnerRules, KnowTheFunctionsOfCppByTheirDecoratedNames)
{
    const TestFolder folder;
    folder.Write("lytdata.dll", LibraryFile({"_Z8NextItemPciS_i", "?OpenMarked@@YAXPEBD@Z"}));
    const std::string found = TextsOfFindings(filled, {folder.Path()});
    for (const char* hint : {"hint: \"_Z8NextItemPciS_i\" is that function of C++; declare it extern \"C\"\n",
                             "hint: \"?OpenMarked@@YAXPEBD@Z\" is that function of C++; declare it extern \"C\"\n"})
        EXPECT_NE(found.find(hint), std::string::npos) << found;
}

TEST(PartnerRules, TellOfALibraryThatCannotBeLoaded)
{
    const TestFolder folder;
    folder.Write("lytdata.dll", LibraryFile({"NextItem", "OpenMarked"}, machine32));
    EXPECT_EQ(TextsOfFindings(filled, {folder.Path()}),
              R"(example.dlg:45:23: warning partner-form: lytdata.dll is no 64-bit library
        Parts = FILLEDBY, lytdata, OpenMarked, NextItem
                          ^~~~~~~
    hint: build it for 64 bits
)");
    folder.Write("lytdata.dll", "a text");
    EXPECT_EQ(TextsOfFindings(filled, {folder.Path()}),
              R"(example.dlg:45:23: warning partner-form: lytdata.dll is no library, or is damaged
        Parts = FILLEDBY, lytdata, OpenMarked, NextItem
                          ^~~~~~~
    hint: build it for 64 bits
)");
}

TEST(PartnerRules, TellOfAFunctionThatALibraryDoesNotHave)
{
    const TestFolder folder;
    folder.Write("lytdata.dll", LibraryFile({"NextItem", "OpenMarkd"}));
    EXPECT_EQ(TextsOfFindings(filled, {folder.Path()}),
              R"(example.dlg:45:32: warning partner-function: lytdata.dll has no function "OpenMarked"
        Parts = FILLEDBY, lytdata, OpenMarked, NextItem
                                   ^~~~~~~~~~
    hint: did you mean "OpenMarkd"?
)");
}

TEST(PartnerRules, KnowTheFunctionsOfTheLibraryItself)
{
    EXPECT_EQ(TextsOfFindings("$VALUES\n    Parts = FILLEDBY, lyt64, lytListFromIniStart, lytListFromIniNxt"),
              R"(example.dlg:45:51: warning partner-function: lyt64.dll has no function "lytListFromIniNxt"
        Parts = FILLEDBY, lyt64, lytListFromIniStart, lytListFromIniNxt
                                                      ^~~~~~~~~~~~~~~~~
    hint: did you mean "lytListFromIniNext"?
)");
}

TEST(PartnerRules, TellOfTwoLibrariesForControlsOfOneType)
{
    EXPECT_EQ(
        TextsOfFindings("$VALUES\n    Form = FILLEDBY, lytdata, Open, Next\n    Place = FILLEDBY, other, Open, Next"),
        R"(example.dlg:46:23: warning partner-shared: "Form" in line 45 names lytdata.dll, and controls of one type share a library
        Place = FILLEDBY, other, Open, Next
                          ^~~~~
    hint: put the functions into one library
)");
}
