// Files in memory, opened as the library opens any file.
#include "native/MemoryFiles.h"
#include "environment/ProfileFile.h"

#include <afx.h>

#include <gtest/gtest.h>

namespace
{

constexpr UINT appending = CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite | CFile::typeText;

class MemoryFile : public testing::Test
{
public:
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

protected:
    MemoryFile() { platform::PutMemoryFile(name, "one\r\ntwo\n[a]\nkey=value\n"); }
    ~MemoryFile() override { platform::RemoveMemoryFile(name); }

    static std::string NextLine(CStdioFile& file)
    {
        char line[100] = "";
        return file.ReadString(line, sizeof line - 1) != nullptr ? line : "";
    }
    static std::string Content()
    {
        const std::string* content = platform::FindMemoryFile("memory:/folder/file.txt");
        return content != nullptr ? *content : "missing";
    }

    static constexpr const char* name = "memory:\\folder\\file.txt";
};

} // namespace

TEST_F(MemoryFile, IsReadLineByLine)
{
    CStdioFile file;
    ASSERT_TRUE(file.Open("memory:/folder\\file.txt", CFile::modeRead));
    EXPECT_EQ(NextLine(file), "one\n");
    EXPECT_EQ(NextLine(file), "two\n");
}

TEST_F(MemoryFile, StaysOpenWhenItIsPutAgainOrRemoved)
{
    CStdioFile file;
    ASSERT_TRUE(file.Open(name, CFile::modeRead));
    platform::PutMemoryFile(name, "");
    platform::RemoveMemoryFile(name);
    EXPECT_EQ(NextLine(file), "one\n");
}

TEST_F(MemoryFile, IsAProfileFile)
{
    EXPECT_EQ(lytReadProfileText("a", "key", "", 100, name), "value");
    EXPECT_EQ(lytReadProfileText("a", "key", "none", 100, "memory:\\other"), "none");
}

TEST_F(MemoryFile, IsWrittenAtItsEnd)
{
    platform::PutMemoryFile(name, "one\r\n");
    CStdioFile file;
    ASSERT_TRUE(file.Open(name, appending));
    file.SeekToEnd();
    file.WriteString("two\n");
    file.Close();
    EXPECT_EQ(Content(), "one\r\ntwo\r\n");
}

TEST_F(MemoryFile, IsMadeByTheFirstThatWrites)
{
    platform::RemoveMemoryFile(name);
    CFileException error;
    CStdioFile file;
    EXPECT_FALSE(file.Open(name, CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    ASSERT_TRUE(file.Open(name, appending));
    file.WriteString("new");
    file.Close();
    EXPECT_EQ(Content(), "new");
}
