// Texts of the language file, and values of lyt.ini.
#include "TextsFixture.h"

#include "robot/WindowRobot.h"
#include "support/Cases.h"

namespace
{

// The answer of a call, and the text that its buffer holds.
template <class Call>
std::string Answer(int size, Call call)
{
    GuardedBuffer buffer(size, "old");
    const int answer = call(buffer.Data(), buffer.Size());
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(answer) + " " + buffer.Text();
}

using TextForKey = TextsFixture;
using TextFromIniFile = TextsFixture;

} // namespace

TEST_F(TextForKey, IsThatOfTheCurrentLanguageWithItsArgument)
{
    static const struct
    {
        const char* text;
        const char* argument;
        int size;
        const char* answer;
    } cases[] = {
        {"[s]\r\nk=a text\r\n", "", 20, "1 a text"},
        // The argument is put after the first apostrophe.
        {"[s]\r\nk=a''b\r\n", "x", 20, "1 a'x'b"},
        {"[s]\r\nk=a''b\r\n", nullptr, 20, "1 a''b"},
        {"", "x", 20, "0 no value present"},
        // A text that does not fit leaves the buffer empty and counts as found.
        {"[s]\r\nk=12345\r\n", "", 6, "1 12345"},
        {"[s]\r\nk=12345\r\n", "", 5, "1 "},
    };
    for (const auto& c : cases)
    {
        WriteTexts(c.text);
        EXPECT_EQ(Answer(c.size, [&](char* text, int size) { return textForKey("s", "k", c.argument, text, size); }),
                  c.answer);
    }
}

TEST_F(TextFromIniFile, IsTheValueOfTheNamedKey)
{
    WriteIni("[paths]\r\nhome=C:\\lyt\r\n[a]\r\nb=no value present\r\nempty=\r\nb/c=value\r\nlong=12345\r\n");
    const auto value = [this](const std::string& path)
    {
        const int room = path == "a/long" ? 5 : 20;
        return Answer(room, [&](char* text, int size) { return textFromIni(path.c_str(), text, size); });
    };
    ExpectEach(value, {{"paths/home", "1 C:\\lyt"},
                       {"none/b", "1 Entry not found"},
                       // Only a value that is the sentinel gives 0.
                       {"a/b", "0 no value present"},
                       {"a/empty", "1 "},
                       // The first slash splits.
                       {"a/b/c", "1 value"},
                       {"a/long", "1 "}});
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
    EXPECT_EQ(buffer.Text(), "old");
}
