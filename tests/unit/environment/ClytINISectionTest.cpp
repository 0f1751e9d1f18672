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

    const TestFolder folder;
    const std::string file = folder.Write("test.ini", "");
    ClytINISection section{file.c_str(), "s"};
};

} // namespace

TEST_F(IniSection, ReadsKeysAndValuesInFileOrder)
{
    Write("b=1\r\na = two \r\n; note\r\n\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(Lines(), "<b|1><a|two>");
    EXPECT_EQ(section.GetLongestKey(), 1U);
    EXPECT_EQ(section.GetLongestValue(), 3U);
}

TEST_F(IniSection, TakesALineThatBeginsWithEqualsAsAKey)
{
    Write("=value\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(Lines(), "<=value|>");
    EXPECT_EQ(section.GetLongestKey(), 0U);
    EXPECT_EQ(section.GetLongestValue(), 6U);
}

TEST_F(IniSection, CountsALineWithoutEqualsAsAValueOnly)
{
    Write("a long key\r\nb=1\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(Lines(), "<a long key|><b|1>");
    EXPECT_EQ(section.GetLongestKey(), 1U);
    EXPECT_EQ(section.GetLongestValue(), 10U);
}

TEST_F(IniSection, SplitsAtTheFirstEqualsOnly)
{
    Write("key=a=b\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(Lines(), "<key|a=b>");
    EXPECT_EQ(section.GetLongestValue(), 3U);
}

TEST_F(IniSection, KeepsBothLinesWithOneKey)
{
    Write("k=1\r\nk=2\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(Lines(), "<k|1><k|2>");
}

TEST_F(IniSection, KeepsAnEmptyValue)
{
    Write("k=\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(Lines(), "<k|>");
    EXPECT_EQ(section.GetLongestKey(), 1U);
    EXPECT_EQ(section.GetLongestValue(), 0U);
}

TEST_F(IniSection, OnceAbsentIsEmptyAndKeepsItsLengths)
{
    Write("key=value\r\n");
    EXPECT_TRUE(section.Read());
    folder.Write("test.ini", "[other]\r\na=1\r\n");
    EXPECT_FALSE(section.Read());
    EXPECT_TRUE(section.empty());
    EXPECT_EQ(section.GetLongestKey(), 3U);
    EXPECT_EQ(section.GetLongestValue(), 5U);
}

TEST_F(IniSection, ReadAgainHoldsTheNewLinesAndTheGreatestLengths)
{
    Write("key=value\r\n");
    EXPECT_TRUE(section.Read());
    Write("a=1\r\n");
    EXPECT_TRUE(section.Read());
    EXPECT_EQ(Lines(), "<a|1>");
    EXPECT_EQ(section.GetLongestKey(), 3U);
    EXPECT_EQ(section.GetLongestValue(), 5U);
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
