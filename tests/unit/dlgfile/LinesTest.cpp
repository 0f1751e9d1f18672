#include "Description.h"

namespace
{

std::string Lines(const std::string& content, const char* defines)
{
    Description file(content, defines);
    std::string lines;
    char line[400];
    while (file.ReadString(line, 399) != nullptr)
        lines += line;
    return lines;
}

std::string Failure(const std::string& content, const char* defines = nullptr)
{
    Description file(content, defines);
    return RaisedMessage(
        [&]
        {
            CString name;
            CString keyword;
            CStringList values;
            while (file.ReadValueStatement(name, keyword, values) != 0)
                continue;
        });
}

class LongLines : public WithErrorTexts
{
};

class LineNumbers : public WithErrorTexts
{
};

} // namespace

TEST(Defines, DeliverTheStretchesOfADefinedName)
{
    const char* content = "<X\na\n>\n<!X\nb\n>\nc\n";
    EXPECT_EQ(Lines(content, "X"), "a\nc\n");
    EXPECT_EQ(Lines(content, nullptr), "b\nc\n");
    EXPECT_EQ(Lines(content, ""), "b\nc\n");
}

TEST(Defines, AreCutAtCommasWithoutTrimming)
{
    const char* content = "<X\nx\n<Y\ny\n< Z\nempty\n";
    EXPECT_EQ(Lines(content, "X,Y"), "x\ny\n");
    EXPECT_EQ(Lines(content, " X,Y "), "");
    EXPECT_EQ(Lines(content, "X,"), "x\nempty\n");
    EXPECT_EQ(Lines(content, ",,"), "empty\n");
}

TEST(Defines, AreNamedUpToABlankOrSemicolon)
{
    EXPECT_EQ(Lines("<X ; comment\na\n>\n", "X"), "a\n");
    EXPECT_EQ(Lines("<X; comment\na\n>\n", "X"), "a\n");
    EXPECT_EQ(Lines("<X\tY\na\n>\n", "X"), "a\n");
    EXPECT_EQ(Lines("<XY\na\n>\n", "X"), "");
    EXPECT_EQ(Lines("<!X ; comment\na\n>\n", "X"), "");
    EXPECT_EQ(Lines("<x\na\n>\n", "X"), "");
}

TEST(Defines, AreNamedUpToACarriageReturn)
{
    EXPECT_EQ(Lines("<X\rmore\na\n>\n", "X"), "a\n");
    EXPECT_EQ(Lines("<!X\rmore\na\n>\n", nullptr), "a\n");
}

TEST(Defines, EndAtAMarkerLineWhateverFollowsItsFirstCharacter)
{
    EXPECT_EQ(Lines("<No\na\n> end of No\nb\n", nullptr), "b\n");
    EXPECT_EQ(Lines("<No\na\n>No\nb\n", nullptr), "b\n");
    EXPECT_EQ(Lines("a\n>; note\nb\n", nullptr), "a\nb\n");
}

TEST(Defines, DoNotNest)
{
    EXPECT_EQ(Lines("<No\na\n<X\nb\n>\nc\n>\nd\n", "X"), "b\nc\nd\n");
}

TEST(Defines, NeedTheirMarkerInColumnOne)
{
    EXPECT_EQ(Lines(" <No\na\n >\n", "X"), " <No\na\n >\n");
}

TEST(Defines, ReadToTheEndOfASwitchedOffFile)
{
    EXPECT_EQ(Lines("<No\na\nb", nullptr), "");
}

TEST_F(LongLines, ArriveInPiecesOf399Characters)
{
    const std::string longLine = std::string(399, 'a') + std::string(399, 'b') + "c\n";
    Description file(longLine);
    char line[400];
    ASSERT_NE(file.ReadString(line, 399), nullptr);
    EXPECT_EQ(line, std::string(399, 'a'));
    ASSERT_NE(file.ReadString(line, 399), nullptr);
    EXPECT_EQ(line, std::string(399, 'b'));
    ASSERT_NE(file.ReadString(line, 399), nullptr);
    EXPECT_STREQ(line, "c\n");
    EXPECT_EQ(file.ReadString(line, 399), nullptr);
}

TEST_F(LongLines, AreSeveralStatements)
{
    // The piece ends as a line does, and what is left over is a statement of one token on line 2.
    EXPECT_EQ(Failure("A=" + std::string(397, 'x') + "B\n"), "212 '2'");
    // The line end alone is the second piece here, and counts as a line without a statement.
    EXPECT_EQ(Failure("A=" + std::string(397, 'x') + "\nB\n"), "212 '3'");
    EXPECT_EQ(Failure("A=" + std::string(396, 'x') + "\nB\n"), "212 '2'");
}

TEST_F(LongLines, MayHoldAMarkerWhereAPieceBegins)
{
    EXPECT_EQ(Failure("A=" + std::string(397, 'x') + "<No\nB\n>\nC\n"), "212 '2'");
}

TEST_F(LineNumbers, LeaveSwitchedOffStretchesOut)
{
    EXPECT_EQ(Failure("A=1\nB\n"), "212 '2'");
    EXPECT_EQ(Failure("<X\nA=1\nA=2\n>\nB\n"), "212 '1'");
    EXPECT_EQ(Failure("<X\nA=1\nA=2\n>\nB\n", "X"), "212 '3'");
}

TEST_F(LineNumbers, CountALineWithANulCharacterOnce)
{
    EXPECT_EQ(Failure(std::string("A\0=1\n", 5)), "212 '1'");
}

TEST(DialogFile, RefusesANullFileName)
{
    ClytDialogFile file(nullptr);
    EXPECT_EQ(RaisedMessage([&] { file.SetFilePath(nullptr); }), missingArgument);
}

TEST(DialogFile, DoesNotOpenAFolder)
{
    const TestFolder folder;
    ClytDialogFile file(nullptr);
    EXPECT_FALSE(file.Open(folder.Path().c_str(), CFile::modeRead));
}
