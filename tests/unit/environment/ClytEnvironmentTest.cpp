#include "environment/ClytEnvironment.h"

#include <gtest/gtest.h>

TEST(ClytEnvironment, NamesTheConfigurationFileWithOneSeparator)
{
    ClytEnvironment environment;
    EXPECT_EQ(environment.GetIniFileName(), "\\lyt.ini");
    environment.SetInitPath("C:\\init");
    EXPECT_EQ(environment.GetIniFileName(), "C:\\init\\lyt.ini");
    environment.SetInitPath("C:\\init\\");
    EXPECT_EQ(environment.GetIniFileName(), "C:\\init\\lyt.ini");
}

TEST(ClytEnvironment, JoinsDefinesByCommas)
{
    ClytEnvironment environment;
    environment.AddDialogDefine("A");
    environment.AddDialogDefine("B");
    EXPECT_EQ(environment.GetDialogDefine(), "A,B");
}
