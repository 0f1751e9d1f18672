#include "environment/ClytException.h"

#include "support/LanguageFolder.h"
#include "support/RaisedMessage.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

class Errors : public testing::Test
{
protected:
    static std::string MessageOf(const ClytException& e) { return lytMessageOf(e).GetString(); }

    const std::string longText = std::string(70, 'x');
    const LanguageFolder folder{"[Dialog_Error]\r\n"
                                "201=no value\r\n"
                                "212=line '' is wrong\r\n"
                                "213=" +
                                longText +
                                "\r\n"
                                "242=unbalanced\r\n"
                                "[MsgBox]\r\n"
                                "Check=please check\r\n"};
};

} // namespace

TEST_F(Errors, SpeakWithTheTextOfTheirNumber)
{
    EXPECT_EQ(MessageOf({"Dialog_Error", "201", "", ""}), "no value");
}

TEST_F(Errors, WithoutATextSpeakWithTheSentinel)
{
    EXPECT_EQ(MessageOf({"Dialog_Error", "999", "", "argument"}), "no value present");
    EXPECT_EQ(MessageOf({"Dialog_Error", "999", "prefix", ""}), "prefix\nno value present");
}

TEST_F(Errors, PutTheArgumentOnceAfterTheFirstApostrophe)
{
    EXPECT_EQ(MessageOf({"Dialog_Error", "212", "", "17"}), "line '17' is wrong");
    EXPECT_EQ(MessageOf({"Dialog_Error", "212", "", ""}), "line '' is wrong");
    EXPECT_EQ(MessageOf({"Dialog_Error", "201", "", "17"}), "no value");
    EXPECT_EQ(MessageOf({"Dialog_Error", "212", "", "O'Hara"}), "line 'O'Hara' is wrong");
}

TEST_F(Errors, PutThePrefixOnALineAboveTheText)
{
    EXPECT_EQ(MessageOf({"Dialog_Error", "212", "cause", "17"}), "cause\nline '17' is wrong");
}

TEST_F(Errors, OfEvaluationRulesHaveASectionOfTheirOwn)
{
    EXPECT_EQ(MessageOf({"MsgBox", "Check", "", ""}), "please check");
    EXPECT_EQ(MessageOf({"Dialog_Error", "Check", "", ""}), "no value present");
}

TEST_F(Errors, CopyTheirMessageUpToTheSizeOfTheBuffer)
{
    const ClytException error("Dialog_Error", "201", "", "");
    char buffer[] = "##########";
    EXPECT_NE(error.GetErrorMessage(buffer, 4), 0);
    EXPECT_STREQ(buffer, "no ");
    EXPECT_EQ(buffer[4], '#');
    EXPECT_NE(error.GetErrorMessage(buffer, 1), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(error.GetErrorMessage(nullptr, 10), 0);
    buffer[0] = '#';
    EXPECT_EQ(error.GetErrorMessage(buffer, 0), 0);
    EXPECT_EQ(buffer[0], '#');
}

TEST_F(Errors, GiveMoreThan74BytesToALargerBuffer)
{
    char buffer[200] = "";
    ClytException("Dialog_Error", "213", "0123456789", "").GetErrorMessage(buffer, sizeof buffer);
    EXPECT_EQ(buffer, "0123456789\n" + longText);
}

TEST_F(Errors, ShowTheFirst74BytesOfTheirMessage)
{
    TakeMessages();
    ClytException("Dialog_Error", "213", "0123456789", "").ReportError();
    EXPECT_EQ(TakeMessages(), std::vector{("0123456789\n" + longText).substr(0, 74)});
}

TEST_F(Errors, ReportedAreShownAndTheOperationGoesOn)
{
    TakeMessages();
    bool wentOn = false;
    lytReport("212", "cause", "17");
    wentOn = true;
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(TakeMessages(), std::vector<std::string>{"cause\nline '17' is wrong"});
}

TEST_F(Errors, RaisedEndTheOperationAndShowNothing)
{
    TakeMessages();
    bool wentOn = false;
    EXPECT_EQ(RaisedMessage(
                  [&]
                  {
                      lytRaise("212", "cause", "17");
                      wentOn = true;
                  }),
              "cause\nline '17' is wrong");
    EXPECT_FALSE(wentOn);
    EXPECT_TRUE(TakeMessages().empty());
}

TEST_F(Errors, TextsOfAKeyServeAsPrefixes)
{
    EXPECT_EQ(ClytPrefix::OfKey("242").Worded(), "unbalanced");
    EXPECT_EQ(ClytPrefix::OfKey("238").Worded(), "no value present");
}

TEST_F(Errors, MessagesFollowTheLanguageAtTheTimeTheyAreShown)
{
    const ClytException error("Dialog_Error", "201", "", "");
    folder.Write("lang/Test.nls", "[Dialog_Error]\r\n201=kein Wert\r\n");
    EXPECT_EQ(MessageOf(error), "kein Wert");
}
