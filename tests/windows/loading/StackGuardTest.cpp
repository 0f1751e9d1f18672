// The library's own stack guard, at work in a program that runs over its buffer.
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

struct Ended
{
    DWORD code = 0;
    std::string output;
};

Ended RunHost(const std::string& act)
{
    const TestFolder folder;
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const std::string file = folder.Path() + "\\output";
    HANDLE output = CreateFileA(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output;
    PROCESS_INFORMATION process = {};
    std::string command = "stack-guard-host.exe " + act;
    EXPECT_TRUE(
        CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process));
    constexpr DWORD limit = 60000;
    EXPECT_EQ(WaitForSingleObject(process.hProcess, limit), WAIT_OBJECT_0);
    Ended ended;
    GetExitCodeProcess(process.hProcess, &ended.code);
    for (HANDLE handle : {process.hThread, process.hProcess, output})
        CloseHandle(handle);
    ended.output = folder.Read("output");
    return ended;
}

} // namespace

TEST(StackGuard, LeavesAFunctionAloneThatKeepsToItsBuffer)
{
    const Ended ended = RunHost("keep");
    EXPECT_EQ(ended.code, 0U);
    EXPECT_EQ(ended.output, "returned");
}

TEST(StackGuard, EndsTheProcessWhenABufferWasRunOver)
{
    const Ended ended = RunHost("overrun");
    EXPECT_EQ(ended.code, static_cast<DWORD>(STATUS_STACK_BUFFER_OVERRUN));
    EXPECT_EQ(ended.output, "");
}

TEST(StackGuard, DiffersFromProcessToProcessAndEndsATextThatRunsIntoIt)
{
    const std::string first = RunHost("show").output;
    const std::string second = RunHost("show").output;
    EXPECT_NE(first, second);
    for (const std::string& guard : {first, second})
    {
        ASSERT_EQ(guard.size(), 16U) << guard;
        EXPECT_EQ(guard.substr(14), "00");
        EXPECT_NE(guard.substr(0, 8), "00000000");
    }
}
