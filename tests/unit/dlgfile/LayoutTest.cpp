#include "Description.h"

namespace
{

// The version and the words of the layout line.
std::string Header(const std::string& content)
{
    Description file(content);
    CString version;
    CStringList words;
    EXPECT_EQ(file.ReadVersionHeader(version), 1);
    file.TakeTokens(words);
    return std::string(version.GetString()) + ": " + Joined(words);
}

std::string HeaderFailure(const std::string& content)
{
    return RaisedMessage([&] { Header(content); });
}

// What the reader gives for the line that opens a dialog.
std::string Dialog(const std::string& content)
{
    Description file(content);
    int width = 0;
    int height = 0;
    CString title;
    CString lastText;
    if (file.ReadDialogHeader(width, height, title, lastText) == 0)
        return "no dialog";
    return std::to_string(width) + "x" + std::to_string(height) + " " + title.GetString() + " " + lastText.GetString();
}

std::string DialogFailure(const std::string& content)
{
    return RaisedMessage([&] { Dialog(content); });
}

std::string Control(const std::string& line)
{
    Description file(line);
    ClytControlStatement statement;
    if (file.ReadControlStatement(statement) == 0)
        return "end";
    std::string shown = statement.type.GetString();
    for (const int number : {statement.x, statement.y, statement.width, statement.height})
        shown += " " + std::to_string(number);
    return shown + " '" + statement.text.GetString() + "' '" + statement.name.GetString() + "'";
}

std::string ControlFailure(const std::string& line)
{
    return RaisedMessage([&] { Control(line); });
}

class VersionHeader : public WithErrorTexts
{
};

class DialogHeader : public WithErrorTexts
{
};

class ControlStatement : public WithErrorTexts
{
};

} // namespace

TEST_F(VersionHeader, TakesAnyVersion)
{
    EXPECT_EQ(Header("$VERSION 1\n$LAYOUT\n"), "1: $LAYOUT");
    EXPECT_EQ(Header("$VERSION abc\n$LAYOUT\n"), "abc: $LAYOUT");
}

TEST_F(VersionHeader, TakesTheOperandsOfTheLayoutLine)
{
    EXPECT_EQ(Header("$VERSION 1\n$LAYOUT TEXTS, more (x): y\n"), "1: $LAYOUT|TEXTS|more||x||y");
}

TEST_F(VersionHeader, SkipsWhatStandsAboveIt)
{
    EXPECT_EQ(Header("Begin Dialog\n$VALUES\n\n; note\nText 1 (2) \"x\n$VERSION 1\nBegin\n$LAYOUT\n"), "1: $LAYOUT");
}

TEST_F(VersionHeader, MayHoldTheLayoutWordAsItsVersion)
{
    EXPECT_EQ(Header("$VERSION $LAYOUT\nBegin Dialog"), "$LAYOUT: $VERSION|$LAYOUT");
}

TEST_F(VersionHeader, ComparesItsWordsByteForByte)
{
    EXPECT_EQ(HeaderFailure("$version 1\n$LAYOUT\n"), "213 ''");
}

TEST_F(VersionHeader, WithAnyNumberOfOperandsButOneRaises)
{
    EXPECT_EQ(HeaderFailure("\n$VERSION 1 2\n$LAYOUT\n"), "212 '2'");
    EXPECT_EQ(HeaderFailure("$VERSION\n$LAYOUT\n"), "212 '1'");
}

TEST_F(VersionHeader, WithoutALayoutLineRaises)
{
    EXPECT_EQ(HeaderFailure(""), "214 ''");
    EXPECT_EQ(HeaderFailure("$VERSION 1\nanything\n"), "214 ''");
}

TEST_F(VersionHeader, RaisesAnOpenQuoteOnItsOwnLinesOnly)
{
    EXPECT_EQ(HeaderFailure("$VERSION \"1\n"), "210 ''");
    EXPECT_EQ(HeaderFailure("$VERSION 1\n$LAYOUT \"x\n"), "210 ''");
}

TEST_F(DialogHeader, TakesItsSevenWords)
{
    EXPECT_EQ(Dialog("Begin Dialog Box 200, 100, \"TITLE_KEY\", .Main\n"), "200x100 TITLE_KEY .Main");
}

TEST_F(DialogHeader, ReadsBlanksAndCommasAlike)
{
    EXPECT_EQ(Dialog("Begin Dialog Box 200 100 \"T\" .M\n"), Dialog("Begin Dialog Box 200, 100, \"T\", .M\n"));
}

TEST_F(DialogHeader, MayStandBelowEmptyLines)
{
    EXPECT_EQ(Dialog("\n  \n; note\nBegin,Dialog,x,1,2,T,M\n"), "1x2 T M");
}

TEST_F(DialogHeader, ReadsAWordAsTheNumber0)
{
    EXPECT_EQ(Dialog("Begin Dialog Box wide -7 T M\n"), "0x-7 T M");
    EXPECT_EQ(Dialog("Begin Dialog Box 99999999999 -99999999999 T M\n"), "2147483647x-2147483648 T M");
}

TEST_F(DialogHeader, OfSixOrEightWordsRaises)
{
    EXPECT_EQ(DialogFailure("Begin Dialog 200, 100, \"T\", .M\n"), "212 '1'");
    EXPECT_EQ(DialogFailure("\nBegin Dialog Box 200, 100, \"T\", .M, x\n"), "212 '2'");
    EXPECT_EQ(DialogFailure("Begin Dialog Box (200, 100), \"T\", .M\n"), "212 '1'");
}

TEST_F(DialogHeader, OfAnotherThingIsNoDialog)
{
    EXPECT_EQ(Dialog("Begin Window Box 200, 100, \"T\", .M\n"), "no dialog");
}

TEST_F(DialogHeader, IsCountedBeforeItsSecondWordIsLookedAt)
{
    EXPECT_EQ(DialogFailure("Begin Window 200, 100, \"T\", .M\n"), "212 '1'");
    EXPECT_EQ(DialogFailure("Begin\n"), "212 '1'");
}

TEST_F(DialogHeader, DoesNotFollowAnEmptyWord)
{
    for (const char* line : {", Begin Dialog Box 200 100 T .M\n", "(Begin Dialog Box 200 100 T .M)\n",
                             "\"\" Begin Dialog Box 200 100 T\n", ",\nBegin Dialog Box 200 100 T .M\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(DialogFailure(line), "215 ''");
    }
}

TEST_F(DialogHeader, IsNeededBeforeAnythingElse)
{
    EXPECT_EQ(DialogFailure(""), "215 ''");
    EXPECT_EQ(DialogFailure("\n; note\n"), "215 ''");
    EXPECT_EQ(DialogFailure("Text 1, 2, 3, 4\n"), "215 ''");
}

TEST_F(ControlStatement, TakesEachOfItsForms)
{
    static const struct
    {
        const char* line;
        const char* read;
    } cases[] = {
        {"OptionGroup .Kind\n", "OptionGroup 0 0 0 0 '' 'Kind'"},
        {"OptionGroup .Kind, 1, 2\n", "OptionGroup 0 0 0 0 '' 'Kind'"},
        {"Text 1, 2, 3, 4\n", "Text 1 2 3 4 '' ''"},
        {"Text 1, 2, 3, 4, .Name\n", "Text 1 2 3 4 '' 'Name'"},
        {"Text 1, 2, 3, 4, .Name, more\n", "Text 1 2 3 4 '' 'Name'"},
        {"Text 1, 2, 3, 4, \"KEY\"\n", "Text 1 2 3 4 'KEY' ''"},
        {"Text 1, 2, 3, 4, \"KEY\", .Name\n", "Text 1 2 3 4 'KEY' 'Name'"},
        {"Text 1, 2, 3, 4, \"KEY\", .Name, more\n", "Text 1 2 3 4 'KEY' 'Name'"},
        {"Text\t1\t2\t3\t4\n", "Text 1 2 3 4 '' ''"},
        {"Text 1, 2, 3, 4", "Text 1 2 3 4 '' ''"},
        {"Text one, , 3, -4\n", "Text 0 0 3 -4 '' ''"},
        {"Text 99999999999, 2, 3, 4\n", "Text 2147483647 2 3 4 '' ''"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(Control(c.line), c.read);
    }
}

TEST_F(ControlStatement, EndsAtASemicolon)
{
    EXPECT_EQ(Control("Text 1, 2, 3, 4 ; note\n"), "Text 1 2 3 4 '' ''");
}

TEST_F(ControlStatement, HoldsBlanksAndCommasInAQuotedText)
{
    EXPECT_EQ(Control("Text 1, 2, 3, 4, \"a, b\", .T\n"), "Text 1 2 3 4 'a, b' 'T'");
}

TEST_F(ControlStatement, TakesAQuotedTextWithAPointAsTheName)
{
    EXPECT_EQ(Control("Text 1, 2, 3, 4, \".abc\", .T\n"), "Text 1 2 3 4 '' 'abc'");
}

TEST_F(ControlStatement, CutsTheFirstCharacterOfALastNameWithoutAPoint)
{
    EXPECT_EQ(Control("Text 1, 2, 3, 4, \"a\", Name\n"), "Text 1 2 3 4 'a' 'ame'");
    EXPECT_EQ(Control("Text 1, 2, 3, 4, \"a\", \"\"\n"), "Text 1 2 3 4 'a' ''");
}

TEST_F(ControlStatement, IsMissingOnAnEmptyOrCommentLine)
{
    for (const char* line : {"\n", "   \n", "; Text 1, 2, 3, 4\n", ", 1, 2\n", "\"\" 1, 2\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(Control(line), " 0 0 0 0 '' ''");
    }
}

TEST_F(ControlStatement, TakesEndWithAnyWordAsNoControl)
{
    EXPECT_EQ(Control("End Dialog\n"), " 0 0 0 0 '' ''");
    EXPECT_EQ(Control("End 1, 2, 3, 4\n"), " 0 0 0 0 '' ''");
}

TEST_F(ControlStatement, FailsInTheClassLibraryAtALoneEnd)
{
    EXPECT_EQ(ControlFailure("End\n"), missingArgument);
}

TEST_F(ControlStatement, EndsWithTheValuesHeader)
{
    EXPECT_EQ(Control("$VALUES\n"), "end");
    EXPECT_EQ(Control("  $VALUES more\n"), "end");
}

TEST_F(ControlStatement, OfWrongFormRaises)
{
    for (const char* line : {"Text\n", "Text 1\n", "Text 1, 2\n", "Text 1, 2, 3\n", "Text 1, .N\n", "Text 1, 2, .N\n",
                             "Text 1, 2, 3, .N\n", "Text .\n", "Text 1, 2, 3, 4, .\n", "Text 1, 2, 3, 4, \"a\", .\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(ControlFailure(line), "212 '1'");
    }
}
