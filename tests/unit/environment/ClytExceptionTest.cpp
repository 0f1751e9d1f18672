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

TEST_F(Errors, SpeakWithTheTextOfTheirNumberBelowThePrefixAndAroundTheArgument)
{
    static const struct
    {
        const char* section;
        const char* number;
        const char* prefix;
        const char* argument;
        const char* message;
    } cases[] = {
        {"Dialog_Error", "201", "", "", "no value"},
        {"Dialog_Error", "201", "", "17", "no value"},
        {"Dialog_Error", "212", "", "17", "line '17' is wrong"},
        {"Dialog_Error", "212", "", "", "line '' is wrong"},
        {"Dialog_Error", "212", "", "O'Hara", "line 'O'Hara' is wrong"},
        {"Dialog_Error", "212", "cause", "17", "cause\nline '17' is wrong"},
        {"Dialog_Error", "999", "", "argument", "no value present"},
        {"Dialog_Error", "999", "prefix", "", "prefix\nno value present"},
        // Evaluation rules have a separate section.
        {"MsgBox", "Check", "", "", "please check"},
        {"Dialog_Error", "Check", "", "", "no value present"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MessageOf({c.section, c.number, c.prefix, c.argument}), c.message);
    EXPECT_EQ(ClytPrefix::OfKey("242").Worded(), "unbalanced");
    EXPECT_EQ(ClytPrefix::OfKey("238").Worded(), "no value present");
    // The language is that of the moment in which the message is shown.
    const ClytException error("Dialog_Error", "201", "", "");
    folder.Write("lang/Test.nls", "[Dialog_Error]\r\n201=kein Wert\r\n");
    EXPECT_EQ(MessageOf(error), "kein Wert");
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

TEST_F(Errors, ShowTheFirst74BytesOfTheirMessage)
{
    TakeMessages();
    ClytException error("Dialog_Error", "213", "0123456789", "");
    char buffer[200] = "";
    error.GetErrorMessage(buffer, sizeof buffer);
    EXPECT_EQ(buffer, "0123456789\n" + longText);
    error.ReportError();
    EXPECT_EQ(TakeMessages(), std::vector{("0123456789\n" + longText).substr(0, 74)});
}

TEST_F(Errors, AreReportedAndTheOperationContinuesOrAreRaisedAndItEnds)
{
    TakeMessages();
    lytReport("212", "cause", "17");
    EXPECT_EQ(TakeMessages(), std::vector<std::string>{"cause\nline '17' is wrong"});
    EXPECT_EQ(RaisedMessage([] { lytRaise("212", "cause", "17"); }), "cause\nline '17' is wrong");
    EXPECT_TRUE(TakeMessages().empty());
}
