#include "tree/NodeExpansion.h"

#include "tree/NodeSearch.h"

#include "unit/tree/TreeRecords.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

using Numbers = std::vector<int>;

// Levels 0 to 3 and back, shown as items 1 to 5.
class NodeExpansion : public testing::Test
{
protected:
    void SetUp() override
    {
        RecordedSource source({
            Record(0, LYT_TREE_HEADING, "", "a"),
            Record(1, LYT_TREE_HEADING, "", "b"),
            Record(2, LYT_TREE_GROUP, "", "c"),
            Record(3, LYT_TREE_SYMBOL, "", "d"),
            Record(0, LYT_TREE_HEADING, "", "a"),
        });
        lytFillFromSource(nodes, source.Source(), &items, 'S');
    }

    int Expand(int treeLevels, bool byLevels, const char* selectKey)
    {
        return RecordedItems::Number(lytExpandNodes(nodes, {treeLevels, byLevels, selectKey}, items));
    }

    ClytNodeList nodes;
    RecordedItems items;
};

} // namespace

TEST_F(NodeExpansion, OpensTheLevelsBelowTheLimit)
{
    Expand(3, true, "");
    EXPECT_EQ(items.expanded, Numbers({1, 2, 5}));
}

TEST_F(NodeExpansion, OpensTheRootWithoutANumber)
{
    Expand(0, true, "");
    EXPECT_EQ(items.expanded, Numbers({1, 5}));
}

TEST_F(NodeExpansion, OpensNothingForSmallNumbers)
{
    Expand(1, true, "");
    Expand(-5, true, "");
    Expand(INT_MIN, true, "");
    EXPECT_EQ(items.expanded, Numbers());
}

TEST_F(NodeExpansion, OpensEverythingForAHugeNumber)
{
    Expand(INT_MAX, true, "");
    EXPECT_EQ(items.expanded, Numbers({1, 2, 3, 4, 5}));
}

TEST_F(NodeExpansion, SelectsTheRootAtTheOpeningByLevels)
{
    NodeAt(nodes, 3).m_nCurrent = 1;
    EXPECT_EQ(Expand(3, true, ""), 1);
}

TEST_F(NodeExpansion, SelectsTheLastEntryWithTheKey)
{
    EXPECT_EQ(Expand(3, true, "a"), 5);
    EXPECT_EQ(Expand(3, false, "c"), 3);
}

TEST_F(NodeExpansion, SelectsTheCurrentNodeUnlessTheKeyIsFound)
{
    NodeAt(nodes, 3).m_nCurrent = 1;
    EXPECT_EQ(Expand(3, false, ""), 4);
    EXPECT_EQ(Expand(3, false, "b"), 2);
    EXPECT_EQ(Expand(3, true, "unknown"), 4);
}

TEST_F(NodeExpansion, LetsALaterKeyOverrideTheCurrentNode)
{
    NodeAt(nodes, 1).m_nCurrent = 1;
    EXPECT_EQ(Expand(3, false, "c"), 3);
}

TEST_F(NodeExpansion, SelectsNothingWithoutKeyAndCurrentNode)
{
    EXPECT_EQ(Expand(3, false, ""), 0);
    EXPECT_EQ(Expand(3, false, "unknown"), 0);
}

TEST_F(NodeExpansion, SelectsNothingForACurrentNodeThatIsNotShown)
{
    RecordedItems groups;
    lytFillFromList(nodes, groups, 'G');
    NodeAt(nodes, 3).m_nCurrent = 1;
    EXPECT_EQ(Expand(3, false, ""), 0);
}

TEST_F(NodeExpansion, OpensWhatWasLeftOpenByItsExactState)
{
    static const struct
    {
        UINT state;
        bool open;
    } cases[] = {{0, false},  {32, false}, {64, false}, {66, false}, {96, true},
                 {97, false}, {98, true},  {99, false}, {112, false}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.state);
        items.expanded.clear();
        NodeAt(nodes, 1).m_nItemState = c.state;
        Expand(9, false, "");
        EXPECT_EQ(items.expanded, c.open ? Numbers({2}) : Numbers());
    }
}

TEST_F(NodeExpansion, LooksAtNoStateAtTheOpeningByLevels)
{
    NodeAt(nodes, 2).m_nItemState = 96;
    Expand(2, true, "");
    EXPECT_EQ(items.expanded, Numbers({1, 5}));
}

TEST_F(NodeExpansion, DoesNothingForAnEmptyList)
{
    EXPECT_EQ(lytExpandNodes(ClytNodeList(), {3, true, ""}, items), nullptr);
    EXPECT_TRUE(items.expanded.empty());
}
