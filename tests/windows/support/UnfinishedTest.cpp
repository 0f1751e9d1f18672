// A test program that dies as if all were well. Whoever runs it has to notice.
#include <gtest/gtest.h>

#include <windows.h>

TEST(Unfinished, ProgramIsNoSuccess)
{
    TerminateProcess(GetCurrentProcess(), 0);
}
