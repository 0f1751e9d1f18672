#include "tree/ClytChildCursor.h"

#include "unit/tree/TreeRecords.h"

#include <gtest/gtest.h>

namespace
{

using Lines = std::vector<std::string>;

class ChildCursor : public testing::Test
{
protected:
    void SetUp() override
    {
        RecordedSource source({
            Record(0, LYT_TREE_HEADING, "House", "h"),
            Record(1, LYT_TREE_GROUP, "Roof", "roof"),
            Record(2, LYT_TREE_SYMBOL, "Tile##red", "t1"),
            Record(2, LYT_TREE_SYMBOL, "Tin", "t2"),
            Record(1, LYT_TREE_GROUP, "Wall", "wall"),
            Record(3, LYT_TREE_SYMBOL, "Brick", "b1"),
            Record(1, LYT_TREE_GROUP, "Last", "last"),
        });
        lytFillFromSource(nodes, source.Source(), nullptr, 'S');
    }

    // `text|path` of each read until one finds nothing.
    Lines ReadAll()
    {
        Lines lines;
        CString text;
        CString path;
        while (cursor.Read(nodes, text, path))
            lines.push_back((text + "|" + path).GetString());
        return lines;
    }

    ClytNodeList nodes;
    ClytChildCursor cursor;
};

} // namespace

TEST_F(ChildCursor, DeliversTheSymbolsThatFollowAGroup)
{
    ASSERT_TRUE(cursor.Start(nodes, "roof"));
    EXPECT_EQ(ReadAll(), Lines({"Tile   red|t1\\Tile##red", "Tin|t2\\Tin"}));
}

TEST_F(ChildCursor, DeliversNothingWithoutAStart)
{
    EXPECT_EQ(ReadAll(), Lines());
}

TEST_F(ChildCursor, StartsAtAHeadingWithoutAPlaceToRead)
{
    EXPECT_TRUE(cursor.Start(nodes, "h"));
    EXPECT_EQ(ReadAll(), Lines());
}

TEST_F(ChildCursor, ReadsOnFromTheOldPlaceAfterAHeading)
{
    ASSERT_TRUE(cursor.Start(nodes, "roof"));
    CString text;
    CString path;
    ASSERT_TRUE(cursor.Read(nodes, text, path));
    EXPECT_TRUE(cursor.Start(nodes, "h"));
    EXPECT_EQ(ReadAll(), Lines({"Tin|t2\\Tin"}));
}

TEST_F(ChildCursor, FindsNoStartForTheLastNodeOrAnUnknownKey)
{
    EXPECT_FALSE(cursor.Start(nodes, "last"));
    EXPECT_FALSE(cursor.Start(nodes, "unknown"));
    EXPECT_FALSE(cursor.Start(nodes, "Roof"));
    EXPECT_FALSE(cursor.Start(ClytNodeList(), "roof"));
}

TEST_F(ChildCursor, KeepsTheLevelOfTheVeryFirstRead)
{
    ASSERT_TRUE(cursor.Start(nodes, "roof"));
    EXPECT_EQ(ReadAll().size(), 2U);
    ASSERT_TRUE(cursor.Start(nodes, "wall"));
    EXPECT_EQ(ReadAll(), Lines());
}

TEST_F(ChildCursor, StaysAtANodeOfAnotherLevel)
{
    ASSERT_TRUE(cursor.Start(nodes, "roof"));
    ReadAll();
    // It stands at the group "wall" still, and a start that moves nothing leaves it there.
    ASSERT_TRUE(cursor.Start(nodes, "h"));
    EXPECT_EQ(ReadAll(), Lines());
}

TEST_F(ChildCursor, KeepsItsLevelThoughThatReadWasTheLastOfTheList)
{
    ClytNodeList two;
    RecordedSource source({Record(0, LYT_TREE_GROUP, "", "g"), Record(5, LYT_TREE_SYMBOL, "only", "s")});
    lytFillFromSource(two, source.Source(), nullptr, 'S');
    ASSERT_TRUE(cursor.Start(two, "g"));
    CString text;
    CString path;
    EXPECT_TRUE(cursor.Read(two, text, path));
    EXPECT_FALSE(cursor.Read(two, text, path));
    ASSERT_TRUE(cursor.Start(nodes, "roof"));
    EXPECT_EQ(ReadAll(), Lines());
}

TEST_F(ChildCursor, ReadsNothingOnceItsNodesAreForgotten)
{
    ASSERT_TRUE(cursor.Start(nodes, "roof"));
    cursor.Forget();
    EXPECT_EQ(ReadAll(), Lines());
}

TEST(DeleteNodes, EmptiesBothCataloguesAndEndsTheWalk)
{
    RecordedSource source({Record(0, LYT_TREE_GROUP, "", "g"), Record(1, LYT_TREE_SYMBOL, "", "s")});
    lytFillFromSource(lytSymbolNodes, source.Source(), nullptr, 'S');
    lytFillFromSource(lytParaNodes, source.Source(), nullptr, 'G');
    ASSERT_TRUE(lytChildCursor.Start(lytSymbolNodes, "g"));
    lytDeleteNodes();
    EXPECT_TRUE(lytSymbolNodes.IsEmpty());
    EXPECT_TRUE(lytParaNodes.IsEmpty());
    CString text;
    CString path;
    EXPECT_FALSE(lytChildCursor.Read(lytSymbolNodes, text, path));
    lytDeleteNodes();
}
