// What the one form of a description leaves as it is; the form itself is in the transcript of lytdlg fmt.
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

} // namespace

TEST(Fmt, LeavesALineThatItCannotReformatAsItIs)
{
    static constexpr const char* values[] = {
        "  Mark",         // refused
        "  A = \"open",   // refused
        "A\t= b",         // a tab that makes a separate word
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
    // A word that would be there does not become one.
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

TEST(Fmt, KeepsALastLineOfBlanks)
{
    // A last line of blanks is a line, and without them there would be none.
    EXPECT_EQ(Formatted("$VERSION 1\n$LAYOUT S\n   "), "$VERSION 1\n$LAYOUT S\n   ");
}

TEST(Fmt, LeavesNulsLoneReturnsAndAllAfterAnEndOfTextAsTheyAre)
{
    const std::string head = "$VERSION 1\n$LAYOUT\nBegin Dialog Box 1, 2, \"T\", .M\n$VALUES\n";
    for (const std::string& lines : {"  A=b\0\n"s, "  A=b\r\r\n"s, "  A=b\x1A\n  A=c\n"s, " A=b \x7F\n"s})
        EXPECT_EQ(Formatted(head + lines), head + lines);
    EXPECT_EQ(Formatted(head + "  A=b\0\n  A=c\n"s), head + "  A=b\0\n    A = c\n"s);
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
