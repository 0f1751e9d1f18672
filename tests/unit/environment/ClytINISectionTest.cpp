#include "environment/ClytINISection.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

class IniSection : public testing::Test
{
protected:
    void Write(const std::string& lines) const { folder.Write("test.ini", "[s]\r\n" + lines); }

    // Key and value of each line, joined.
    std::string Lines() const
    {
        std::string joined;
        for (const ClytINIStruct& line : section)
            joined += "<" + std::string(line.key) + "|" + std::string(line.value) + ">";
        return joined;
    }

    // Reads a section of these lines: what it holds, and its lengths.
    void ExpectRead(const std::string& content, const std::string& lines, size_t longestKey, size_t longestValue)
    {
        Write(content);
        EXPECT_TRUE(section.Read());
        EXPECT_EQ(Lines(), lines);
        EXPECT_EQ(section.GetLongestKey(), longestKey);
        EXPECT_EQ(section.GetLongestValue(), longestValue);
    }

    const TestFolder folder;
    const std::string file = folder.Write("test.ini", "");
    ClytINISection section{file.c_str(), "s"};
};

} // namespace

TEST_F(IniSection, ReadsKeysAndValuesInFileOrder)
{
    ExpectRead("b=1\r\na = two \r\n; note\r\n\r\n", "<b|1><a|two>", 1, 3);
}

TEST_F(IniSection, TakesALineThatBeginsWithEqualsAsAKey)
{
    ExpectRead("=value\r\n", "<=value|>", 0, 6);
}

TEST_F(IniSection, CountsALineWithoutEqualsAsAValueOnly)
{
    ExpectRead("a long key\r\nb=1\r\n", "<a long key|><b|1>", 1, 10);
}

TEST_F(IniSection, SplitsAtTheFirstEqualsOnly)
{
    ExpectRead("key=a=b\r\n", "<key|a=b>", 3, 3);
}

TEST_F(IniSection, KeepsBothLinesWithOneKey)
{
    ExpectRead("k=1\r\nk=2\r\n", "<k|1><k|2>", 1, 1);
}

TEST_F(IniSection, KeepsAnEmptyValue)
{
    ExpectRead("k=\r\n", "<k|>", 1, 0);
}

TEST_F(IniSection, OnceAbsentIsEmptyAndKeepsItsLengths)
{
    ExpectRead("key=value\r\n", "<key|value>", 3, 5);
    folder.Write("test.ini", "[other]\r\na=1\r\n");
    EXPECT_FALSE(section.Read());
    EXPECT_TRUE(section.empty());
    EXPECT_EQ(section.GetLongestKey(), 3U);
    EXPECT_EQ(section.GetLongestValue(), 5U);
}

TEST_F(IniSection, ReadAgainHoldsTheNewLinesAndTheGreatestLengths)
{
    ExpectRead("key=value\r\n", "<key|value>", 3, 5);
    ExpectRead("a=1\r\n", "<a|1>", 3, 5);
}

TEST_F(IniSection, IsEmptyWhenFileOrSectionIsMissing)
{
    EXPECT_FALSE(section.Read());
    ClytINISection noFile((folder.Path() + "\\none.ini").c_str(), "s");
    EXPECT_FALSE(noFile.Read());
    ClytINISection noNames(nullptr, nullptr);
    EXPECT_FALSE(noNames.Read());
    EXPECT_EQ(noNames.GetSectionName(), "");
}

TEST_F(IniSection, IsCutAt2048BytesWithinALine)
{
    std::string lines;
    for (int i = 0; i < 500; ++i)
        lines += "key" + std::to_string(1000 + i) + "=v\r\n"; // ten bytes each in the buffer
    Write(lines);
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(section.size(), 205U);
    EXPECT_EQ(section.back().key, "key120");
    EXPECT_EQ(section.back().value, "");
    EXPECT_EQ(section.front().key, "key1000");
}

TEST_F(IniSection, HoldsTheWholeOfASectionThatJustFits)
{
    Write("a=" + std::string(2043, 'x') + "\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(section.GetLongestValue(), 2043U);
    Write("a=" + std::string(2045, 'x') + "\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(section.front().value.GetLength(), 2044);
}
