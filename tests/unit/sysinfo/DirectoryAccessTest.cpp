#include "sysinfo/files/FileListing.h"

#include <gtest/gtest.h>

#include <cerrno>

TEST(DirectoryAccess, TellsWhatIsMissing)
{
    EXPECT_EQ(DirectoryAccessLine(ENOENT, "C:\\none"), "Directory 'C:\\none' does not exist!");
    EXPECT_EQ(DirectoryAccessLine(EACCES, "C:\\shut"), "Directory 'C:\\shut' does not have read / write access!");
}

TEST(DirectoryAccess, IsSilentAboutAnyOtherError)
{
    EXPECT_FALSE(DirectoryAccessLine(EINVAL, "C:\\odd"));
    EXPECT_FALSE(DirectoryAccessLine(0, "C:\\odd"));
}
