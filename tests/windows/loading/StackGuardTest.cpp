// The library's own stack guard, at work in a program that runs over its buffer.
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

namespace
{

ChildEnd RunHost(const std::string& act)
{
    return ChildProcess("stack-guard-host.exe " + act).Wait();
}

} // namespace

TEST(StackGuard, LeavesAFunctionAloneThatKeepsToItsBuffer)
{
    const ChildEnd ended = RunHost("keep");
    EXPECT_EQ(ended.code, 0U);
    EXPECT_EQ(ended.output, "returned");
}

TEST(StackGuard, EndsTheProcessWhenABufferWasRunOver)
{
    const ChildEnd ended = RunHost("overrun");
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
