// What the browser shows of long texts and of large catalogues.
#include "TreeFixture.h"

class TreeShape : public TreeTest
{
protected:
    Lines Shown(const Records& records)
    {
        UseSource();
        Serve('S', records);
        return ItemsShown("S");
    }
};

TEST_F(TreeShape, BytesOfTheCodePageStayAsTheyAre)
{
    EXPECT_EQ(Shown({Entry(0, LYT_TREE_SYMBOL, "T\xFCr \x80", "t\xFCr")}), Lines({"T\xFCr \x80 [2]"}));
    EXPECT_EQ(Pick("S", "T\xFCr \x80").text, "t\xFCr");
}

TEST_F(TreeShape, TenThousandRecordsKeepTheirOrder)
{
    Records records;
    Lines lines;
    for (int number = 0; number < 10'000; ++number)
    {
        const int level = number % 100 == 0 ? 0 : 1 + number % 10 % 3;
        const std::string label = std::to_string(number);
        records.push_back(Entry(level, LYT_TREE_SYMBOL, label, label));
    }
    UseSource();
    Serve('S', records);
    Lines labels;
    for (std::string& line : ItemsShown("S"))
        labels.push_back(line.substr(line.find_first_not_of(' '), line.find(" [") - line.find_first_not_of(' ')));
    for (int number = 0; number < 10'000; ++number)
        lines.push_back(std::to_string(number));
    EXPECT_EQ(labels, lines);
    EXPECT_EQ(SymbolFor("9999"), "1 9999");
}

TEST_F(TreeShape, DeepBranchOfAThousandLevels)
{
    Records records;
    for (int level = 0; level < 1000; ++level)
        records.push_back(Entry(level, LYT_TREE_HEADING, std::to_string(level), ""));
    const Lines lines = Shown(records);
    ASSERT_EQ(lines.size(), 1000U);
    EXPECT_EQ(lines.back(), std::string(1998, ' ') + "999 [0]");
}
