#include "system/NameLength.h"

#include <afx.h>

#include "base/PartnerLibrary.h"
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
    return {fileName + std::string(32'767 - fileName.size(), 'x'), std::string(40'000, 'x'),
            fileName + std::string(32'768, 'x'), fileName + std::string(65'536, 'x')};
}

class NameLength : public testing::Test
{
protected:
    NameLength() { folder.Write("values.ini", "[Section]\nKey=Value\n"); }

    TestFolder folder;
    std::string fileName = folder.Path() + "\\values.ini";
};

} // namespace

TEST_F(NameLength, FitsUpToTheLengthThatThePlatformCounts)
{
    EXPECT_TRUE(NameFits(""));
    EXPECT_TRUE(NameFits(std::string(32'766, 'x').c_str()));
    EXPECT_FALSE(NameFits(std::string(32'767, 'x').c_str()));
}

TEST_F(NameLength, BeyondThatLengthIsAMissingConfigurationFile)
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

// The platform would take a name of 65,537 bytes for its first byte alone, and a shorter one for what its memory holds.
TEST_F(NameLength, BeyondThatLengthIsAMissingSectionOrKey)
{
    for (const size_t length : {32'767, 65'535, 65'536, 65'537, 100'000})
    {
        SCOPED_TRACE(length);
        const std::string name(length, 'x');
        folder.Write("values.ini", "[x]\nKey=Value\nx=Value\n[" + name + "]\nKey=Value\nx=Value\n" + name + "=Value\n");
        EXPECT_EQ(lytReadProfileText(name.c_str(), "Key", "none", 75, fileName.c_str()), "none");
        EXPECT_EQ(lytReadProfileText("x", name.c_str(), "none", 75, fileName.c_str()), "none");
        char lines[20] = "untouched";
        EXPECT_EQ(lytReadProfileSection(name.c_str(), lines, sizeof lines, fileName.c_str()), 0);
        EXPECT_STREQ(lines, "");
    }
}

TEST_F(NameLength, BeyondThatLengthIsNotFoundWhenOpened)
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

TEST_F(NameLength, BeyondThatLengthIsAMissingLibrary)
{
    for (const std::string& name : TooLongNames(fileName))
        EXPECT_EQ(lytLoadLibrary(name.c_str()), nullptr) << name.size();
}
