#include "DialogFixture.h"

#include "support/NumberedTexts.h"

std::string SharedTexts()
{
    return "[Buttons]\r\n001=OK\r\n002=Cancel\r\n"
           "[TEXTS]\r\nTitle=The title\r\nLabel=A label\r\nLong=A label that is much longer\r\n"
           "Apostrophe=It's cut\r\nQuotes=\"\"\"\"\r\n"
           "[MsgBox]\r\nRefused=That is refused.\r\n" +
           NumberedTexts("E");
}

DialogFixture::DialogFixture()
{
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n");
    WriteTexts(SharedTexts());
    initialise("doc.rtf", folder.Path().c_str(), folder.Path().c_str());
}

DialogFixture::~DialogFixture()
{
    EXPECT_TRUE(robot.Done()) << robot.Log();
    release();
}

int DialogFixture::Show(const char* key)
{
    GuardedBuffer buffer(100, "as it was");
    const int outcome = symbol(key, buffer.Data(), buffer.Size());
    EXPECT_TRUE(buffer.IsIntact());
    text = buffer.Text();
    return outcome;
}

int DialogFixture::ShowAndPress(int button, const char* key)
{
    PressOn(button);
    return Show(key);
}

std::string DialogFixture::MessageOfFailure()
{
    const size_t before = robot.Messages().size();
    robot.AnswerMessage();
    EXPECT_EQ(Show("key"), 0);
    EXPECT_EQ(text, "as it was");
    EXPECT_EQ(robot.Messages().size(), before + 1);
    return robot.Messages().empty() ? "" : robot.Messages().back();
}
