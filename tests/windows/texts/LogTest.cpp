#include "LogFixture.h"

#include <regex>

TEST_F(LogFile, IsNotCreatedWithLevel0)
{
    writeToLog("text", 0);
    SetLevel("0");
    writeToLog("text", 0);
    writeToLog("text", -1);
    EXPECT_FALSE(folder.Has("doc.log"));
}

TEST_F(LogFile, IsNotCreatedForAMessageAboveTheLevel)
{
    SetLevel("2");
    writeToLog("text", 3);
    EXPECT_FALSE(folder.Has("doc.log"));
}

TEST_F(LogFile, GetsABlockForEachMessage)
{
    SetLevel("2");
    writeToLog("first", 2);
    writeToLog("second", 0);
    writeToLog(nullptr, 1);
    const std::string rule(77, '-');
    const std::string moment = "Date \\d\\d/\\d\\d/\\d\\d           Time \\d\\d:\\d\\d:\\d\\d\r\n";
    const auto block = [&](const std::string& text)
    {
        return "\r\n" + rule + "\r\nSTART\\.\\.\\.  " + moment + rule + "\r\n\r\n" + text + "\r\n" + rule +
               "\r\nEND\\.\\.\\.    " + moment + "\r\n";
    };
    EXPECT_TRUE(std::regex_match(folder.Read("doc.log"), std::regex(block("first") + block("second") + block(""))))
        << folder.Read("doc.log");
}

TEST_F(LogFile, ReadsItsLevelAnewForEachMessage)
{
    writeToLog("before", 1);
    EXPECT_FALSE(folder.Has("doc.log"));
    SetLevel("1");
    writeToLog("after", 1);
    EXPECT_TRUE(folder.Has("doc.log"));
}

TEST_F(LogFile, FollowsTheDocument)
{
    SetLevel("1");
    writeToLog("text", 1);
    SetDocument("other.rtf");
    writeToLog("text", 1);
    EXPECT_TRUE(folder.Has("doc.log"));
    EXPECT_TRUE(folder.Has("other.log"));
}

TEST_F(LogFile, ThatCannotBeOpenedRaises207ToTheCaller)
{
    SetLevel("1");
    WriteTexts("[Dialog_Error]\r\n207=open ''\r\n");
    initialise("none\\doc.rtf", folder.Path().c_str(), folder.Path().c_str());
    EXPECT_EQ(Failure("text", 1), "The file was not found: none\\doc.log\nopen 'none\\doc.log'");
}

TEST_F(LogFile, WorksAgainAfterAHundredFailures)
{
    SetLevel("1");
    for (int i = 0; i < 100; ++i)
    {
        initialise("none\\doc.rtf", folder.Path().c_str(), folder.Path().c_str());
        EXPECT_NE(Failure("text", 1), "");
    }
    SetDocument("doc.rtf");
    EXPECT_EQ(Failure("text", 1), "");
    EXPECT_TRUE(folder.Has("doc.log"));
}
