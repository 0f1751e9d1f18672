#include "ReportTest.h"

#include <cstdio>

namespace
{

class Workstation : public ReportTest
{
};

} // namespace

TEST_F(Workstation, TakesAnEmptyVariableForOneThatIsNotSet)
{
    const EnvironmentVariable temp("TEMP", "");
    const EnvironmentVariable tmp("TMP", "");
    const Texts lines = Report();
    EXPECT_TRUE(HasLine(lines, "TEMP    :Value not set."));
    EXPECT_TRUE(HasLine(lines, "TMP     :Value not set."));
}

TEST_F(Workstation, NamesComputerUserAndScreenAfterTheVariables)
{
    char computer[128] = "";
    DWORD size = sizeof computer;
    GetComputerNameA(computer, &size);
    char user[128] = "";
    size = sizeof user;
    GetUserNameA(user, &size);
    char screen[64];
    std::snprintf(screen, sizeof screen, "Screen Resolution: %d x %d", GetSystemMetrics(SM_CXSCREEN),
                  GetSystemMetrics(SM_CYSCREEN));

    const Texts lines = Report();
    const size_t first = FindLine(lines, "TMP     :");
    ASSERT_LT(first + 4, lines.size());
    EXPECT_EQ(lines[first + 1], std::string("COMPUTERNAME:") + computer);
    EXPECT_EQ(lines[first + 2], std::string("USERNAME:") + user);
    EXPECT_EQ(lines[first + 3], screen);
    EXPECT_EQ(lines[first + 4], "File Information:");
}
