// The log beside another program that has it open: windows in memory have the files of a system where nobody keeps one to
// himself.
#include "LogFixture.h"

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

TEST_F(LogFile, IsClosedAfterEachMessage)
{
    SetLevel("1");
    writeToLog("text", 1);
    HANDLE alone = CreateFileA(folder.File("doc.log").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE);
    CloseHandle(alone);
}
