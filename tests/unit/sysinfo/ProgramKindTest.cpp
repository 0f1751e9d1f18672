#include "sysinfo/frame/ProgramKind.h"

#include <gtest/gtest.h>

TEST(ProgramKind, IsToldOnlyByTheInformationProgram)
{
    EXPECT_TRUE(TellsItsKind("c:\\lyt\\lytinfo64.exe"));
    EXPECT_TRUE(TellsItsKind("c:\\lytinfo\\other.exe"));
    EXPECT_FALSE(TellsItsKind("c:\\lyt\\other.exe"));
    EXPECT_FALSE(TellsItsKind(""));
}

TEST(ProgramKind, IsNotToldByANameThatBeginsWithIt)
{
    EXPECT_FALSE(TellsItsKind("lytinfo.exe"));
}

TEST(ProgramKind, IsServerOrFrontEndWithItsBits)
{
    EXPECT_EQ(ProgramKindText({true, 6U}), "LYT Server 64 bit");
    EXPECT_EQ(ProgramKindText({true, 0U}), "LYT Server 32 bit");
    EXPECT_EQ(ProgramKindText({true, {}}), "LYT Server");
    EXPECT_EQ(ProgramKindText({false, 6U}), "LYT Front-End 64 bit");
    EXPECT_EQ(ProgramKindText({false, 0U}), "LYT Front-End 32 bit");
    EXPECT_EQ(ProgramKindText({false, {}}), "LYT Front-End");
}
