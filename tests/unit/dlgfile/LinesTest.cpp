#include "Description.h"

#include "unit/Readings.h"

namespace
{

// The lines that are left in, with the first line of the text as the define list.
std::string Lines(const std::string& content)
{
    const size_t end = content.find('\n');
    const std::string defines = content.substr(0, end);
    Description file(content.substr(end + 1), defines == "none" ? nullptr : defines.c_str());
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

} // namespace

TEST(Defines, SwitchStretchesOnAndOff)
{
    ExpectReadings("dlgfile/readings.cases", "Lines", Lines);
}

TEST_F(LongLines, ArriveInPiecesOf399Characters)
{
    const std::string longLine = std::string(399, 'a') + std::string(399, 'b') + "c\n";
    Description file(longLine);
    char line[400];
    for (const std::string& piece : {std::string(399, 'a'), std::string(399, 'b'), std::string("c\n")})
    {
        ASSERT_NE(file.ReadString(line, 399), nullptr);
        EXPECT_EQ(line, piece);
    }
    EXPECT_EQ(file.ReadString(line, 399), nullptr);
}

TEST_F(LongLines, AreSeveralStatements)
{
    const std::string full = "A=" + std::string(397, 'x');
    // What is left over is a statement of one token on line 2; the line end alone is a line without a statement.
    EXPECT_EQ(Failure(full + "B\n"), "212 '2'");
    EXPECT_EQ(Failure(full + "\nB\n"), "212 '3'");
    EXPECT_EQ(Failure("A=" + std::string(396, 'x') + "\nB\n"), "212 '2'");
    EXPECT_EQ(Failure(full + "<No\nB\n>\nC\n"), "212 '2'") << "a piece may begin with a marker";
}

TEST_F(LongLines, AreNumberedLikeOthersWithoutTheStretchesLeftOut)
{
    EXPECT_EQ(Failure("A=1\nB\n"), "212 '2'");
    EXPECT_EQ(Failure("<X\nA=1\nA=2\n>\nB\n"), "212 '1'");
    EXPECT_EQ(Failure("<X\nA=1\nA=2\n>\nB\n", "X"), "212 '3'");
    EXPECT_EQ(Failure(std::string("A\0=1\n", 5)), "212 '1'") << "a line with a NUL counts once";
}

TEST(DialogFile, OpensNothingThatIsNoFile)
{
    ClytDialogFile file(nullptr);
    EXPECT_EQ(RaisedMessage([&] { file.SetFilePath(nullptr); }), missingArgument);
    const TestFolder folder;
    EXPECT_FALSE(file.Open(folder.Path().c_str(), CFile::modeRead));
}
