// What the browser shows of odd and of large catalogues.
#include "TreeFixture.h"

#include <climits>

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

TEST_F(TreeShape, OneRecord)
{
    EXPECT_EQ(Shown({Entry(5, LYT_TREE_SYMBOL, "only", "k")}), Lines({"only [2]"}));
}

TEST_F(TreeShape, TwoRecordsOfOneLevelAreSiblings)
{
    EXPECT_EQ(Shown({Entry(1, LYT_TREE_GROUP, "a", ""), Entry(1, LYT_TREE_GROUP, "b", "")}), Lines({"a [1]", "b [1]"}));
}

TEST_F(TreeShape, LevelsThreeAndTwoBehindOneAreBothItsChildren)
{
    EXPECT_EQ(Shown({Entry(1, LYT_TREE_HEADING, "one", ""), Entry(3, LYT_TREE_GROUP, "three", ""),
                     Entry(2, LYT_TREE_SYMBOL, "two", "")}),
              Lines({"one [0]", "  three [1]", "  two [2]"}));
}

TEST_F(TreeShape, LevelsBelowTheFirstStandAtTheRoot)
{
    EXPECT_EQ(Shown({Entry(5, LYT_TREE_HEADING, "five", ""), Entry(3, LYT_TREE_HEADING, "three", ""),
                     Entry(4, LYT_TREE_HEADING, "four", ""), Entry(-1, LYT_TREE_HEADING, "minus", "")}),
              Lines({"five [0]", "three [0]", "  four [0]", "minus [0]"}));
}

TEST_F(TreeShape, NegativeAndHugeLevelsOrderLikeAnyOthers)
{
    EXPECT_EQ(Shown({Entry(INT_MIN, LYT_TREE_HEADING, "min", ""), Entry(INT_MAX, LYT_TREE_HEADING, "max", ""),
                     Entry(-7, LYT_TREE_HEADING, "minus", ""), Entry(0, LYT_TREE_HEADING, "zero", ""),
                     Entry(INT_MIN, LYT_TREE_HEADING, "again", "")}),
              Lines({"min [0]", "  max [0]", "  minus [0]", "    zero [0]", "again [0]"}));
}

TEST_F(TreeShape, TypeSevenBehindAGroupIsAGroup)
{
    UseSource();
    Serve('S', {Entry(0, LYT_TREE_GROUP, "a", "ka"), Entry(0, 7, "b", "kb")});
    EXPECT_EQ(ItemsShown("S"), Lines({"a [1]", "b [1]"}));
    EXPECT_EQ(Pick("G", "b").text, "kb");
}

TEST_F(TreeShape, UnknownTypesCarryOverFromHeadingOn)
{
    EXPECT_EQ(Shown({Entry(0, 0, "a", ""), Entry(0, LYT_TREE_SYMBOL, "b", ""), Entry(0, -1, "c", "")}),
              Lines({"a [0]", "b [2]", "c [2]"}));
}

TEST_F(TreeShape, TypeTakenOverIsShownToGroupsFromTheSecondOpeningOn)
{
    UseSource();
    Serve('S', {Entry(0, LYT_TREE_GROUP, "a", ""), Entry(0, 7, "b", "")});
    EXPECT_EQ(ItemsShown("G"), Lines({"a [1]"}));
    EXPECT_EQ(ItemsShown("G"), Lines({"a [1]", "b [1]"}));
}

TEST_F(TreeShape, LabelMarksShowAsThreeBlanksEach)
{
    EXPECT_EQ(Shown({Entry(0, LYT_TREE_SYMBOL, "a##b##c", "k"), Entry(0, LYT_TREE_SYMBOL, "###", "l")}),
              Lines({"a   b   c [2]", "   # [2]"}));
}

TEST_F(TreeShape, TextsOfNinetyNineCharactersAreWhole)
{
    const std::string label(99, 'l');
    const std::string key(99, 'k');
    EXPECT_EQ(Shown({Entry(0, LYT_TREE_SYMBOL, label, key)}), Lines({label + " [2]"}));
    EXPECT_EQ(Pick("S", label).text, key);
}

TEST_F(TreeShape, LongestLabelOfMarksIsWhole)
{
    EXPECT_EQ(Shown({Entry(0, LYT_TREE_SYMBOL, std::string(98, '#') + "x", "")}),
              Lines({std::string(147, ' ') + "x [2]"}));
}

TEST_F(TreeShape, TextsWithoutAnEndAreEmpty)
{
    EXPECT_EQ(Shown({Entry(0, LYT_TREE_HEADING, std::string(100, 'l'), "h"),
                     Entry(1, LYT_TREE_SYMBOL, "symbol", std::string(100, 'k'))}),
              Lines({" [0]", "  symbol [2]"}));
    EXPECT_EQ(Pick("S", "symbol").text, "");
}

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
