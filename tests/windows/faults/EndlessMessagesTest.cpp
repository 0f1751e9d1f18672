// A call that shows message after message does not come back, and lytcall does.
#include "lytcall/ScriptRunner.h"

#include <gtest/gtest.h>

namespace
{

[[noreturn]] void ShowMessages()
{
    const lytcall::ScriptRunner runner("", "", 0);
    while (true)
        MessageBoxA(nullptr, "again", "Test", MB_ICONERROR);
}

} // namespace

TEST(EndlessMessages, EndTheProgramWithAWordAboutThem)
{
    EXPECT_EXIT(ShowMessages(), testing::ExitedWithCode(1),
                "lytcall: the window \"Test\" is open, and there is no screen .*\n"
                "lytcall: messages keep coming, the last is \"again\"; the call is given up");
}
