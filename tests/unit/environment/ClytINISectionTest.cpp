#include "environment/ClytINISection.h"

#include "support/Cases.h"
#include "support/TestFolder.h"

namespace
{

class IniSection : public testing::Test
{
protected:
    void Write(const std::string& lines) const { folder.Write("test.ini", "[s]\r\n" + lines); }

    // Key and value of each line, and the lengths that their columns need.
    std::string Read(const std::string& lines)
    {
        Write(lines);
        const bool hasLines = section.Read();
        EXPECT_EQ(hasLines, !section.empty());
        std::string shown;
        for (const ClytINIStruct& line : section)
            shown += "<" + line.key + "|" + line.value + ">";
        return shown + " " + std::to_string(section.GetLongestKey()) + "," + std::to_string(section.GetLongestValue());
    }

    const TestFolder folder;
    const std::string file = folder.Write("test.ini", "");
    ClytINISection section{file.c_str(), "s"};
};

} // namespace

TEST_F(IniSection, SplitsEachLineAtItsFirstEqualsSign)
{
    const auto readAlone = [this](const std::string& lines)
    {
        section = ClytINISection(file.c_str(), "s");
        return Read(lines);
    };
    ExpectEach(readAlone, {{"b=1\r\na = two \r\n; note\r\n\r\n", "<b|1><a|two> 1,3"},
                           // A line without a sign, or that begins with it, is a key and counts as a value.
                           {"=value\r\n", "<=value|> 0,6"},
                           {"a long key\r\nb=1\r\n", "<a long key|><b|1> 1,10"},
                           {"key=a=b\r\n", "<key|a=b> 3,3"},
                           {"k=1\r\nk=2\r\n", "<k|1><k|2> 1,1"},
                           {"k=\r\n", "<k|> 1,0"}});
}

TEST_F(IniSection, KeepsTheGreatestLengthsWhenItIsReadAgain)
{
    EXPECT_EQ(Read("key=value\r\n"), "<key|value> 3,5");
    EXPECT_EQ(Read("a=1\r\n"), "<a|1> 3,5");
    EXPECT_EQ(Read("[other]\r\na=1\r\n"), " 3,5");
}

TEST_F(IniSection, IsEmptyWhenFileOrSectionIsMissing)
{
    EXPECT_FALSE(section.Read());
    EXPECT_FALSE(ClytINISection((folder.Path() + "\\none.ini").c_str(), "s").Read());
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
    EXPECT_EQ(section.back().key + "=" + section.back().value, "key120=");
    EXPECT_EQ(section.front().key, "key1000");
    for (const int length : {2043, 2045})
    {
        Write("a=" + std::string(static_cast<size_t>(length), 'x') + "\r\n");
        EXPECT_TRUE(section.Read());
        EXPECT_EQ(section.front().value.GetLength(), std::min(length, 2044));
    }
}
