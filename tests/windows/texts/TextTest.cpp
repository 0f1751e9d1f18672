#include "TextsFixture.h"

#include "robot/WindowRobot.h"

namespace
{

class TextForKey : public TextsFixture
{
};

class TextFromIniFile : public TextsFixture
{
};

} // namespace

TEST_F(TextForKey, CopiesTheTextOfTheCurrentLanguage)
{
    WriteTexts("[s]\r\nk=a text\r\n");
    GuardedBuffer buffer(9);
    EXPECT_EQ(textForKey("s", "k", "", buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "a text");
    EXPECT_TRUE(buffer.IsIntact());
}

TEST_F(TextForKey, PutsTheArgumentAfterTheFirstApostrophe)
{
    WriteTexts("[s]\r\nk=a''b\r\n");
    GuardedBuffer buffer(20);
    EXPECT_EQ(textForKey("s", "k", "x", buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "a'x'b");
    EXPECT_EQ(textForKey("s", "k", nullptr, buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "a''b");
}

TEST_F(TextForKey, AnUnknownKeyGivesTheSentinelAnd0)
{
    GuardedBuffer buffer(20);
    EXPECT_EQ(textForKey("s", "k", "x", buffer.Data(), buffer.Size()), 0);
    EXPECT_EQ(buffer.Text(), "no value present");
}

TEST_F(TextForKey, ATextThatDoesNotFitLeavesTheBufferEmptyAndCountsAsFound)
{
    WriteTexts("[s]\r\nk=12345\r\n");
    GuardedBuffer fits(6);
    EXPECT_EQ(textForKey("s", "k", "", fits.Data(), fits.Size()), 1);
    EXPECT_EQ(fits.Text(), "12345");
    GuardedBuffer tooShort(5, "old");
    EXPECT_EQ(textForKey("s", "k", "", tooShort.Data(), tooShort.Size()), 1);
    EXPECT_EQ(tooShort.Text(), "");
    EXPECT_TRUE(tooShort.IsIntact());
}

TEST_F(TextForKey, RefusesABufferThatHoldsNothing)
{
    GuardedBuffer buffer(9, "old");
    EXPECT_EQ(textForKey("s", "k", "", nullptr, 9), 0);
    EXPECT_EQ(textForKey("s", "k", "", buffer.Data(), 0), 0);
    EXPECT_EQ(textForKey("s", "k", "", buffer.Data(), -1), 0);
    EXPECT_EQ(buffer.Text(), "old");
}

TEST_F(TextFromIniFile, CopiesTheValueOfTheNamedKey)
{
    WriteIni("[paths]\r\nhome=C:\\lyt\r\n");
    GuardedBuffer buffer(20);
    EXPECT_EQ(textFromIni("paths/home", buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "C:\\lyt");
    EXPECT_TRUE(buffer.IsIntact());
}

TEST_F(TextFromIniFile, AMissingKeyGivesItsOwnTextAnd1)
{
    GuardedBuffer buffer(20);
    EXPECT_EQ(textFromIni("a/b", buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "Entry not found");
}

TEST_F(TextFromIniFile, OnlyAValueThatIsTheSentinelGives0)
{
    WriteIni("[a]\r\nb=no value present\r\nempty=\r\n");
    GuardedBuffer buffer(20);
    EXPECT_EQ(textFromIni("a/b", buffer.Data(), buffer.Size()), 0);
    EXPECT_EQ(buffer.Text(), "no value present");
    EXPECT_EQ(textFromIni("a/empty", buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "");
}

TEST_F(TextFromIniFile, SplitsAtTheFirstSlash)
{
    WriteIni("[a]\r\nb/c=value\r\n");
    GuardedBuffer buffer(20);
    EXPECT_EQ(textFromIni("a/b/c", buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "value");
}

TEST_F(TextFromIniFile, APathWithoutASlashShows250AndLeavesTheBufferAlone)
{
    WriteTexts("[Dialog_Error]\r\n250=no slash in ''\r\n");
    GuardedBuffer buffer(20, "old");
    for (const char* path : {"ab", "", static_cast<const char*>(nullptr)})
    {
        robot::Robot robot;
        robot.AnswerMessage();
        EXPECT_EQ(textFromIni(path, buffer.Data(), buffer.Size()), 0);
        EXPECT_TRUE(robot.Done()) << robot.Log();
        EXPECT_EQ(robot.Messages(), std::vector<std::string>{"no slash in ''"});
        EXPECT_EQ(buffer.Text(), "old");
    }
}

TEST_F(TextFromIniFile, RefusesABufferThatHoldsNothingWithoutAMessage)
{
    GuardedBuffer buffer(9, "old");
    EXPECT_EQ(textFromIni("ab", nullptr, 9), 0);
    EXPECT_EQ(textFromIni("ab", buffer.Data(), 0), 0);
    EXPECT_EQ(textFromIni("a/b", buffer.Data(), -1), 0);
    EXPECT_EQ(buffer.Text(), "old");
}

TEST_F(TextFromIniFile, AValueThatDoesNotFitLeavesTheBufferEmpty)
{
    WriteIni("[a]\r\nb=12345\r\n");
    GuardedBuffer tooShort(5, "old");
    EXPECT_EQ(textFromIni("a/b", tooShort.Data(), tooShort.Size()), 1);
    EXPECT_EQ(tooShort.Text(), "");
    EXPECT_TRUE(tooShort.IsIntact());
}
