// The one form of a description, section by section, and what is left as it is.
#include "lytdlg/text/DescriptionLines.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "support/DescriptionText.h"

#include <gtest/gtest.h>

namespace
{

using namespace std::string_literals;

using SectionText = std::string DescriptionText::*;

std::string Formatted(const std::string& content)
{
    const lytdlg::FileForLibrary file(content);
    return lytdlg::FormattedDescription(file.Name(), content);
}

// Lines of a section in their form.
std::string InSection(SectionText section, const std::string& lines)
{
    DescriptionText text;
    text.*section = "; begin\n" + lines + "; end\n";
    const std::string formatted = Formatted(text());
    const std::string first = "; begin\n";
    const size_t start = formatted.find(first) + first.size();
    const size_t end = formatted.find("; end\n", start);
    return formatted.substr(start, formatted.rfind('\n', end) + 1 - start);
}

struct Case
{
    const char* written;
    const char* form;
};

template <size_t COUNT>
void ExpectForms(SectionText section, const Case (&cases)[COUNT])
{
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.written);
        EXPECT_EQ(InSection(section, c.written + "\n"s), c.form + "\n"s);
    }
}

} // namespace

TEST(Fmt, AlignsTheNumbersOfControls)
{
    static constexpr Case cases[] = {
        {"Text 28,27,100,12,\"Name\",.Name", R"~(    Text       28,  27, 100,  12, "Name", .Name)~"},
        {"TextBox  190 24 226 19 .Name", R"~(    TextBox   190,  24, 226,  19, .Name)~"},
        {"OptionButton 160,157,80,12,Slight,.Slight", R"~(    OptionButton 160, 157, 80, 12, "Slight", .Slight)~"},
        {"DropListBox 136,53,228,100,.Order", R"~(    DropListBox 136, 53, 228, 100, .Order)~"},
        {"PushButton 268,256,96,21,\"Pick\"", R"~(    PushButton 268, 256, 96,  21, "Pick")~"},
        {"PushButton 16,225,160,22", R"~(    PushButton 16, 225, 160,  22)~"},
        {"GroupBox 16,\t6,\t-1,1000,\"A B\"", R"~(    GroupBox   16,   6,  -1, 1000, "A B")~"},
        {"OptionGroup,.Order", "    OptionGroup .Order"},
        {"\"TextBox\" \"1\",2,3,4,\"T;\",\".N\"", R"~(    TextBox     1,   2,   3,   4, "T;", .N)~"},
        {"   Unknown 1,2,3,4,\"\",.N  ; note  ", R"~(    Unknown     1,   2,   3,   4, "", .N        ; note)~"},
    };
    ExpectForms(&DescriptionText::layout, cases);
}

TEST(Fmt, SpacesTheDelimitersOfValues)
{
    static constexpr Case cases[] = {
        {"Mark=HIDDEN", "    Mark = HIDDEN"},
        {"\tMark =\tHIDDEN", "    Mark = HIDDEN"},
        {"Inspector :TeamNorth=Team  North", "    Inspector: TeamNorth = Team  North"},
        {"Place: PlaceOpen=\"\"", "    Place: PlaceOpen = \"\""},
        {"Trade=FILLEDBY,lytdata,OpenList", "    Trade = FILLEDBY, lytdata, OpenList"},
        {"AllRooms ( FILLEDBY , lytdata )", "    AllRooms(FILLEDBY, lytdata)"},
        {"A = b; note", "    A = b                                       ; note"},
        {"A = \" x \"", "    A = \" x \""},
        {"A = b,", "    A = b,"},
        {"A = , b", "    A = , b"},
    };
    ExpectForms(&DescriptionText::values, cases);
}

TEST(Fmt, SpacesTheDelimitersOfRules)
{
    static constexpr Case dependencies[] = {
        {"Rate / VISIBLE=Costs( C )", "    Rate/VISIBLE = Costs(C)"},
        {"A/ACTIVE=B(NOTNULL),C(long,short)", "    A/ACTIVE = B(NOTNULL), C(long, short)"},
        {"A/ACTIVE=", "    A/ACTIVE ="},
        {"A/ACTIVE=B(1);  note", "    A/ACTIVE = B(1)                             ;  note"},
    };
    ExpectForms(&DescriptionText::dependencies, dependencies);
    static constexpr Case evaluations[] = {
        {"Name=NULL:NameMissing", "    Name = NULL: NameMissing"},
        {"A(severe)=B(NULL) :Missing", "    A(severe) = B(NULL): Missing"},
        {"Digits(\"\")=Name(area,volume):X", "    Digits(\"\") = Name(area, volume): X"},
    };
    ExpectForms(&DescriptionText::evaluation, evaluations);
}

TEST(Fmt, QuotesTheSeparatorsOfAScan)
{
    static constexpr Case cases[] = {
        {"Start:(\":\",Known,Rest,Whole=Mark,Name", R"~(    Start: (":", Known, Rest, Whole = Mark, Name)~"},
        {"A:(|,B,],End=First", R"~(    A: ("|", B, "]", End = First)~"},
        {"A:(1,Comma=Digits", "    A: (1, Comma = Digits"},
        {"A:(0,Comma=Digits", "    A: (\"0\", Comma = Digits"},
        {"A:(\",\",U,\")\",E)", R"~(    A: (",", U, ")", E))~"},
        {"A:(x,B)=L(CONCAT,\"|\")", R"~(    A: ("x", B) = L(CONCAT, "|"))~"},
        {"A:(\"}\",B=Key,(date,today)First=today,Second=noon",
         R"~(    A: ("}", B = Key, (date, today)First = today, Second = noon)~"},
        {"A:Mark(S1)=Name,Other", "    A: Mark(S1) = Name, Other"},
        {"A:x=Name", "    A: x = Name"},
    };
    ExpectForms(&DescriptionText::input, cases);
}

TEST(Fmt, QuotesTheFormatsOfOutputRules)
{
    static constexpr Case cases[] = {
        {"A(NULL),B(NULL)=(\"S1:%s\",Name)", R"~(    A(NULL), B(NULL) = ("S1:%s", Name))~"},
        {"(G)", "    (\"G\")"},
        {"(%s,Rooms(|),Parts(\"|\"),x)", R"~(    ("%s", Rooms("|"), Parts("|"), x))~"},
        {"(%s,Rooms())", "    (\"%s\", Rooms())"},
        {"A=(\"a\\\"b\",Name)", R"~(    A = ("a\"b", Name))~"},
    };
    ExpectForms(&DescriptionText::output, cases);
}

TEST(Fmt, PutsHeadingsAtTheMargin)
{
    EXPECT_EQ(Formatted("  Free   text;\n\n"
                        "  $VERSION   1\n"
                        "$LAYOUT,Symbol\n"
                        "  Begin  Dialog Box 1,2 Title,.Main\n"
                        "  End   Dialog\n"
                        "  $VALUES   ; note\n"
                        "  $DEPENDANCES\n"
                        "  $EVALUATION,x\n"
                        "  $INPUT,p\n"
                        "  A:(1,B)\n"
                        "  $INPUT  ,  q\n"
                        "  $OUTPUT,p\n"
                        "  $OUTPUT,q\n"
                        "  $END\n"
                        "  after   it\n"),
              "  Free   text;\n\n"
              "$VERSION 1\n"
              "$LAYOUT Symbol\n"
              "Begin Dialog Box 1, 2, \"Title\", .Main\n"
              "End Dialog\n"
              "$VALUES                                         ; note\n"
              "$DEPENDANCES\n"
              "$EVALUATION, x\n"
              "$INPUT, p\n"
              "    A: (1, B)\n"
              "$INPUT, q\n"
              "$OUTPUT, p\n"
              "$OUTPUT, q\n"
              "$END\n"
              "  after   it\n");
}

TEST(Fmt, LeavesALineThatItCannotReformatAsItIs)
{
    static constexpr const char* values[] = {
        "  Mark",         // refused
        "  A = \"open",   // refused
        "A\t= b",         // a tab that makes a word of its own
        "A = b\t",        // and one that ends the line
        "A = \"b\" lost", // words that no reader sees
        "A = b \v",       // bytes that show nothing
    };
    for (const char* line : values)
        EXPECT_EQ(InSection(&DescriptionText::values, line + "\n"s), line + "\n"s);
    static constexpr const char* controls[] = {
        "TextBox 1 , 2, 3, 4, .A",             // blanks before a comma make an empty word
        "TextBox 1, 2, 3, 4, \"T\", .A, more", // passed over
        "TextBox 1, 2, 3, 4, \"T\", NoPoint",
        "TextBox 1, .A",
        "  End Dialog now",
    };
    for (const char* line : controls)
        EXPECT_EQ(InSection(&DescriptionText::layout, line + "\n"s), line + "\n"s);
    EXPECT_EQ(InSection(&DescriptionText::dependencies, "  A/ACTIVE=B ; note\n"), "  A/ACTIVE=B ; note\n");
    EXPECT_EQ(InSection(&DescriptionText::output, "  (\"%s\",a<b)\n"), "  (\"%s\",a<b)\n");
}

TEST(Fmt, LeavesTheFirstLineAfterAHeaderWhereATabOrASemicolonDoesNotSeparate)
{
    DescriptionText text;
    text.input = "  A:x=B; note\n  A:x=B; note\n";
    const std::string formatted = Formatted(text());
    EXPECT_NE(formatted.find("\n  A:x=B; note\n    A: x = B                                    ; note\n"),
              std::string::npos)
        << formatted;
}

TEST(Fmt, LeavesALineThatWouldBecomeTooLong)
{
    const std::string value = "A=" + std::string(390, 'x');
    EXPECT_EQ(InSection(&DescriptionText::values, value + "\n"), "    A = " + value.substr(2) + "\n");
    EXPECT_EQ(InSection(&DescriptionText::values, value + "x\n"), value + "x\n");
    EXPECT_EQ(InSection(&DescriptionText::values, "  " + value + std::string(8, 'x') + "\n"),
              "  " + value + std::string(8, 'x') + "\n");
}

TEST(Fmt, KeepsTheMarksOfDefinesInTheFirstColumn)
{
    EXPECT_EQ(InSection(&DescriptionText::values, "<X ; one\n A=b\n>\n<!X\n A=c\n>  \n"),
              "<X ; one\n    A = b\n>\n<!X\n    A = c\n>  \n");
    // A word that would stand there does not become one.
    EXPECT_EQ(InSection(&DescriptionText::values, " <X=b\n >Y=b\n"), "    <X = b\n    >Y = b\n");
}

TEST(Fmt, ReadsALineByTheSectionThatItHasUnderEachChoiceOfTheDefines)
{
    DescriptionText text;
    // With X these are values, without it still controls, where blanks separate.
    text.layout = "<X\n$VALUES\n>\nA=b\n  A  b\n";
    const std::string formatted = Formatted(text());
    EXPECT_NE(formatted.find("\n$VALUES\n>\nA=b\n  A  b\n"), std::string::npos) << formatted;
}

TEST(Fmt, AlignsTheCommentsOfNeighbouringLines)
{
    EXPECT_EQ(InSection(&DescriptionText::values, "A=b ; one\n"
                                                  "A123456789=b123456789012345678901234567890123456789 ; two\n"
                                                  "A=c  ; three\n"
                                                  "     ; goes on\n"
                                                  "   ; does not\n"
                                                  "A=d ;four\n"),
              "    A = b                                                  ; one\n"
              "    A123456789 = b123456789012345678901234567890123456789  ; two\n"
              "    A = c                                                  ; three\n"
              "                                                           ; goes on\n"
              "    ; does not\n"
              "    A = d                                       ;four\n");
}

TEST(Fmt, LetsNoVeryLongStatementMoveTheCommentsOfOthers)
{
    const std::string text(80, 'x');
    EXPECT_EQ(InSection(&DescriptionText::values, "A=b;one\nA=" + text + ";two\n"),
              "    A = b                                       ;one\n    A = " + text + "  ;two\n");
}

TEST(Fmt, IndentsCommentsLikeStatementsUnlessTheyAreAboutTheNextSection)
{
    DescriptionText text;
    text.values = ";one\n  A=b\n;two\n\n        ;three\n";
    text.dependencies = "  ; four  \n\n; five\n";
    const std::string formatted = Formatted(text());
    EXPECT_NE(
        formatted.find("$VALUES\n    ;one\n    A = b\n;two\n\n    ;three\n$DEPENDANCES\n    ; four\n\n; five\n$EVAL"),
        std::string::npos)
        << formatted;
}

TEST(Fmt, EmptiesBlankLinesAndKeepsTheirNumber)
{
    EXPECT_EQ(InSection(&DescriptionText::values, "A=b\n   \n\t\n\nA=c\n"), "    A = b\n\n\n\n    A = c\n");
}

TEST(Fmt, KeepsTheKindOfEachLineEnd)
{
    DescriptionText text;
    text.values = "A=b\r\nA=c\nA=d\r\n";
    EXPECT_NE(Formatted(text()).find("    A = b\r\n    A = c\n    A = d\r\n"), std::string::npos);
    EXPECT_EQ(Formatted("$VERSION  1\n$LAYOUT  S"), "$VERSION 1\n$LAYOUT S");
    // A last line of blanks is a line, and without them there would be none.
    EXPECT_EQ(Formatted("$VERSION 1\n$LAYOUT S\n   "), "$VERSION 1\n$LAYOUT S\n   ");
}

TEST(Fmt, LeavesNulsLoneReturnsAndAllAfterAnEndOfTextAsTheyAre)
{
    const std::string head = "$VERSION 1\n$LAYOUT\nBegin Dialog Box 1, 2, \"T\", .M\n$VALUES\n";
    for (const std::string& lines : {"  A=b\0\n  A=c\n"s, "  A=b\r\r\n"s, "  A=b\x1A\n  A=c\n"s, " A=b \x7F\n"s})
        EXPECT_EQ(Formatted(head + lines), head + lines);
    EXPECT_EQ(Formatted(head + "  A=b\0\n  A=c\n  A=d\n"s), head + "  A=b\0\n  A=c\n    A = d\n"s);
}

TEST(Fmt, RefusesToChooseAmongMoreThanEightDefines)
{
    std::string marks;
    for (char name = 'A'; name <= 'H'; ++name)
        marks += "<"s + name + "\n>\n";
    EXPECT_EQ(InSection(&DescriptionText::values, marks + "A=b\n"), marks + "    A = b\n");
    try
    {
        InSection(&DescriptionText::values, marks + "<I\n>\n");
        FAIL();
    }
    catch (const lytdlg::TooManyDefines& failure)
    {
        EXPECT_STREQ(failure.what(), "asks for 9 defines, and no more than 8 can be tried in every choice");
    }
}

TEST(Fmt, TriesEveryChoiceOfTheDefines)
{
    EXPECT_EQ(lytdlg::ChoicesOf({}), std::vector<std::string>{""});
    EXPECT_EQ(lytdlg::ChoicesOf({"A", "B"}), (std::vector<std::string>{"", "A", "B", "A,B"}));
    // A mark without a name asks for the empty one.
    EXPECT_EQ(lytdlg::ChoicesOf({"", "A"}), (std::vector<std::string>{"", ",", "A", ",A"}));
}

TEST(Fmt, LeavesTheSamplesAsTheyAre)
{
    for (const auto& file : lytdlg::FilesIn(LYT_SOURCE_FOLDER "/samples/dialogs", ".dlg"))
    {
        const std::string content = lytdlg::ReadWholeFile(file).value();
        EXPECT_EQ(lytdlg::FormattedDescription(file, content), content) << file;
    }
}

TEST(Fmt, SaysSoWhenTheLibraryCannotOpenAFile)
{
    const std::string name(300, 'x');
    try
    {
        lytdlg::FormattedDescription(name, "");
        FAIL();
    }
    catch (const std::runtime_error& failure)
    {
        EXPECT_EQ(failure.what(), "the library cannot open " + name + "; check its name and its rights");
    }
}
