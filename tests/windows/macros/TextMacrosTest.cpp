// Macros that read texts and values, write the log and fetch the report.
#include "MacroFixture.h"

#include <algorithm>

class TextMacros : public MacroTest
{
protected:
    TextMacros() { Start(); }
};

TEST_F(TextMacros, GetATextWithItsArgument)
{
    EXPECT_EQ(TextOf("lyttext", {Given("Some"), Given("plain")}), "Good morning");
    EXPECT_EQ(TextOf("lyttext", {Given("Some"), Given("quoted"), Given("a.txt")}), "The file 'a.txt' is gone");
    EXPECT_EQ(TextOf("lyttext", {Given("Some"), Given("empty")}), "");
}

TEST_F(TextMacros, AskAgainWithMoreRoomForALongText)
{
    for (const size_t length : {200U, 240U, 256U, 5000U, 60000U})
    {
        const std::string name(length, 'n');
        EXPECT_EQ(TextOf("lyttext", {Given("Some"), Given("quoted"), Given(name)}), "The file '" + name + "' is gone");
    }
    const std::string document(3000, 'd');
    Start(document);
    EXPECT_EQ(TextOf("lytdocument"), document);
}

TEST_F(TextMacros, GiveAnotherTextForOneThatIsMissing)
{
    EXPECT_EQ(TextOf("lyttext", {Given("Some"), Given("missing")}), "");
    EXPECT_EQ(TextOf("lyttext", {Given("Some"), Given("missing"), Given(""), Given("none")}), "none");
    EXPECT_EQ(TextOf("lytvalue", {Given("Inspection"), Given("missing"), Given("none")}), "none");
}

TEST_F(TextMacros, GetAValue)
{
    EXPECT_EQ(TextOf("lytvalue", {Given("global"), Given("Current Language")}), "English");
    EXPECT_EQ(TextOf("lytvalue", {Given("Inspection"), Given("none"), Given("other")}), "");
    EXPECT_EQ(FailureOf("lytvalue", {Given("a/b"), Given("c")}),
              "The section \"a/b\" has a slash, which ends its name.");
    EXPECT_EQ(error, Error(6405));
}

TEST_F(TextMacros, GetTheItemsOfAValue)
{
    EXPECT_EQ(ItemsIn(Call("lytlist", {Given("Inspection"), Given("Trades")})), (Lines{"roof", " wall", "", "floor"}));
    EXPECT_EQ(ItemsIn(Call("lytlist", {Given("Inspection"), Given("none")})), Lines());
    EXPECT_EQ(ItemsIn(Call("lytlist", {Given("Inspection"), Given("missing")})), Lines());
}

TEST_F(TextMacros, WriteToTheLogWhenItIsAskedFor)
{
    Start(folder.File("plan.v2.doc"));
    EXPECT_EQ(NumberOf("lytlog", {Given("too fine"), 3LL}), macros::yes);
    EXPECT_FALSE(folder.Has("plan.log"));
    EXPECT_EQ(NumberOf("lytlog", {Given("begin")}), macros::yes);
    EXPECT_NE(folder.Read("plan.log").find("begin"), std::string::npos);
}

TEST_F(TextMacros, SurviveALogThatCannotBeWritten)
{
    Start(folder.Path() + "\\nowhere\\plan.doc");
    EXPECT_EQ(NumberOf("lytlog", {Given("begin")}), macros::no);
    // A document without a dot gives the log no name but ".log", in the current folder.
    char before[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof before, before);
    SetCurrentDirectoryA(folder.Path().c_str());
    Start("plan");
    EXPECT_EQ(NumberOf("lytlog", {Given("begin")}), macros::yes);
    EXPECT_TRUE(folder.Has(".log"));
    SetCurrentDirectoryA(before);
}

TEST_F(TextMacros, FetchTheReportLineByLine)
{
    const std::string longName(200, 'n');
    folder.Write("listed/" + longName + ".txt", "x");
    const Lines lines = ItemsIn(Call("lytreport", {Given(folder.File("listed"))}));
    EXPECT_GT(lines.size(), 50U);
    const bool isListed = std::ranges::any_of(lines, [&](const std::string& line)
                                              { return line.find(longName + ".txt") != std::string::npos; });
    EXPECT_TRUE(isListed);
}

// A character takes two bytes in such a code page, so that a line with fewer characters may have been cut.
TEST_F(TextMacros, FetchAWholeReportLineOfTwoByteCharacters)
{
    std::string names;
    while (names.size() < 300)
        names += "\x83\x41";
    folder.Write("init/lyt.ini", "[Printers]\nnames=" + names + "\n");
    const macros::HostCodePage japanese(932);
    const Lines lines = ItemsIn(Call("lytreport", {Given(folder.Path())}));
    EXPECT_EQ(std::ranges::count(lines, "  names = " + names), 1);
}

TEST_F(TextMacros, OpenTheParaTreeUnderItsOwnName)
{
    Pick("", IDCANCEL);
    EXPECT_EQ(NumberOf("lytpickpara", {Given(""), Given("before")}), macros::no);
    EXPECT_EQ(TextAt(1), "before");
    Pick("Scope of the inspection");
    EXPECT_EQ(NumberOf("lytpickpara", {Given(""), Given("before")}), macros::yes);
    EXPECT_EQ(TextAt(1), "general.intro.scope");
}
