#include "system/FileNameLength.h"

#include <afx.h>

#include "environment/ProfileFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// Names that begin with the name of a file that is there. The platform that counts a name in 16 bits takes the last for
// that very file.
std::vector<std::string> TooLongNames(const std::string& fileName)
{
    return {fileName + std::string(32'768 - fileName.size(), 'x'), std::string(40'000, 'x'),
            fileName + std::string(32'768, 'x'), fileName + std::string(65'536, 'x')};
}

class FileName : public testing::Test
{
protected:
    FileName() { folder.Write("values.ini", "[Section]\nKey=Value\n"); }

    TestFolder folder;
    std::string fileName = folder.Path() + "\\values.ini";
};

} // namespace

TEST_F(FileName, FitsUpToTheLengthThatThePlatformCounts)
{
    EXPECT_TRUE(FileNameFits(""));
    EXPECT_TRUE(FileNameFits(std::string(32'767, 'x').c_str()));
    EXPECT_FALSE(FileNameFits(std::string(32'768, 'x').c_str()));
}

TEST_F(FileName, BeyondThatLengthIsAMissingConfigurationFile)
{
    ASSERT_EQ(lytReadProfileText("Section", "Key", "none", 75, fileName.c_str()), "Value");
    for (const std::string& name : TooLongNames(fileName))
    {
        SCOPED_TRACE(name.size());
        EXPECT_EQ(lytReadProfileText("Section", "Key", "none", 75, name.c_str()), "none");
        EXPECT_EQ(lytReadProfileText("Section", "Key", "none", 3, name.c_str()), "no");
        char lines[20] = "untouched";
        EXPECT_EQ(lytReadProfileSection("Section", lines, sizeof lines, name.c_str()), 0);
        EXPECT_STREQ(lines, "");
    }
}

TEST_F(FileName, BeyondThatLengthIsNotFoundWhenOpened)
{
    for (const std::string& name : TooLongNames(fileName))
    {
        SCOPED_TRACE(name.size());
        CStdioFile file;
        CFileException error;
        EXPECT_FALSE(file.Open(name.c_str(), CFile::modeRead | CFile::typeText, &error));
        EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    }
}
