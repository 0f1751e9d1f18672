#include <afx.h>

#include <cerrno>
#include <gtest/gtest.h>

namespace
{

// The message about a file that the C library could not work on for this reason.
std::string MessageAfter(int error)
{
    const CFileException failure(CFileException::ErrnoToException(error), 0, "a.txt");
    char message[64] = "";
    EXPECT_TRUE(failure.GetErrorMessage(message, sizeof message));
    return message;
}

} // namespace

TEST(CFileException, TellsEachReasonOfTheCLibrary)
{
    for (const int error : {ENOTDIR, ENAMETOOLONG, EINVAL})
        EXPECT_EQ(MessageAfter(error), "The path is not valid: a.txt") << error;
    for (const int error : {EMFILE, ENFILE})
        EXPECT_EQ(MessageAfter(error), "Too many files are open: a.txt") << error;
    for (const int error : {EACCES, EPERM, EISDIR, EROFS})
        EXPECT_EQ(MessageAfter(error), "Access was denied: a.txt") << error;
    EXPECT_EQ(MessageAfter(ENOENT), "The file was not found: a.txt");
    EXPECT_EQ(MessageAfter(EBUSY), "The file is in use: a.txt");
    EXPECT_EQ(MessageAfter(ENOSPC), "The disk is full: a.txt");
    EXPECT_EQ(MessageAfter(EIO), "The file could not be read or written: a.txt");
    EXPECT_EQ(CFileException::ErrnoToException(0), CFileException::none);
}

TEST(CException, HasNoMessageOfItsOwn)
{
    char message[8] = "before";
    EXPECT_FALSE(CException().GetErrorMessage(message, sizeof message));
    EXPECT_STREQ(message, "");
}
