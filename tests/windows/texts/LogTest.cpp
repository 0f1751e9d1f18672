#include "TextsFixture.h"

#include "environment/ClytException.h"

#include <regex>
#include <windows.h>

namespace
{

class LogFile : public TextsFixture
{
protected:
    void SetLevel(const std::string& level) const { WriteIni("[LogLevel]\r\nlevel=" + level + "\r\n"); }

    // The message of the exception that a call of the export lets out.
    std::string Failure(const char* text, int level) const
    {
        try
        {
            writeToLog(text, level);
        }
        catch (ClytException* e)
        {
            char message[75] = "";
            e->GetErrorMessage(message, sizeof message);
            e->Delete();
            return message;
        }
        return "";
    }
};

} // namespace

TEST_F(LogFile, StaysUnbornWithLevel0)
{
    writeToLog("text", 0);
    SetLevel("0");
    writeToLog("text", 0);
    writeToLog("text", -1);
    EXPECT_FALSE(folder.Has("doc.log"));
}

TEST_F(LogFile, StaysUnbornWhenTheMessageIsAboveTheLevel)
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

TEST_F(LogFile, ThatAnotherProgramKeepsToItselfRaises207)
{
    SetLevel("1");
    WriteTexts("[Dialog_Error]\r\n207=open\r\n");
    const std::string log = folder.Write("doc.log", "");
    HANDLE other = CreateFileA(log.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    EXPECT_EQ(Failure("text", 1).substr(0, 19), "Access was denied: ");
    CloseHandle(other);
    EXPECT_EQ(Failure("text", 1), "");
}

TEST_F(LogFile, WithAFolderInItsPlaceRaises207)
{
    SetLevel("1");
    CreateDirectoryA(folder.File("doc.log").c_str(), nullptr);
    EXPECT_EQ(Failure("text", 1).substr(0, 19), "Access was denied: ");
}

TEST_F(LogFile, ItsErrorsAreCaughtWithoutTheirTypeToo)
{
    SetLevel("1");
    initialise("none\\doc.rtf", folder.Path().c_str(), folder.Path().c_str());
    bool caught = false;
    try
    {
        writeToLog("text", 1);
    }
    catch (...)
    {
        caught = true;
    }
    EXPECT_TRUE(caught);
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

TEST_F(LogFile, IsClosedAfterEachMessage)
{
    SetLevel("1");
    writeToLog("text", 1);
    HANDLE alone = CreateFileA(folder.File("doc.log").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE);
    CloseHandle(alone);
}
