#include "tree/NodeSearch.h"

#include "unit/tree/TreeRecords.h"

#include <gtest/gtest.h>

namespace
{

void Fill(ClytNodeList& nodes, std::vector<lytTreeRecord> records)
{
    RecordedSource source(std::move(records));
    lytFillFromSource(nodes, source.Source(), nullptr, 'S');
}

void FillHouse(ClytNodeList& nodes)
{
    Fill(nodes, {
                    Record(0, LYT_TREE_HEADING, "House", "h"),
                    Record(1, LYT_TREE_GROUP, "Roof", "roof"),
                    Record(2, LYT_TREE_SYMBOL, "Tile", "roof-tile"),
                    Record(2, LYT_TREE_SYMBOL, "Tin", "roof-tin"),
                    Record(1, LYT_TREE_SYMBOL, "Lone", "lone"),
                });
}

// The list is the house, unless a test fills another.
class NodeSearch : public testing::Test
{
protected:
    NodeSearch() { FillHouse(nodes); }

    ClytNodeList nodes;
};

using NodeMarks = NodeSearch;

// The label of the node that the text names, "-" when it names none.
std::string Found(const ClytNodeList& nodes, char kind, const char* text)
{
    const ClytNode* node = lytFindNode(nodes, kind, text);
    return node != nullptr ? node->m_szLabel : "-";
}

// The told search, climbing back through the list from each match.
const ClytNode* SearchByWalkingBack(const ClytNodeList& nodes, char kind, const std::string& text)
{
    for (int match = 0; match < nodes.GetCount(); ++match)
    {
        const std::string key = NodeAt(nodes, match).m_szKey;
        if (kind == 'G' ? key != text : key.compare(0, text.size(), text) != 0)
            continue;
        for (int place = match; place >= 0;)
        {
            const ClytNode* node = &NodeAt(nodes, place);
            if (node->m_cType == kind)
                return node;
            while (place >= 0 && NodeAt(nodes, place).m_nLevel >= node->m_nLevel)
                --place;
        }
    }
    return nullptr;
}

} // namespace

TEST_F(NodeSearch, FindsTheFirstSymbolThatBeginsWithTheText)
{
    EXPECT_EQ(Found(nodes, 'S', "roof-tin"), "Tin");
    EXPECT_EQ(Found(nodes, 'S', "roof-t"), "Tile");
    EXPECT_EQ(Found(nodes, 'S', "roof-tilers"), "-");
    EXPECT_EQ(Found(nodes, 'S', "Roof-tin"), "-");
}

TEST_F(NodeSearch, MovesOnFromAGroupThatHasNoSymbolAbove)
{
    EXPECT_EQ(Found(nodes, 'S', "roof"), "Tile");
    EXPECT_EQ(Found(nodes, 'S', "h"), "-");
}

TEST_F(NodeSearch, ClimbsFromASymbolToItsGroup)
{
    EXPECT_EQ(Found(nodes, 'G', "roof-tin"), "Roof");
    EXPECT_EQ(Found(nodes, 'G', "roof"), "Roof");
    EXPECT_EQ(Found(nodes, 'H', "roof-t"), "House");
}

TEST_F(NodeSearch, WantsAWholeKeyForGroups)
{
    EXPECT_EQ(Found(nodes, 'G', "roof-t"), "-");
    EXPECT_EQ(Found(nodes, 'G', "roo"), "-");
}

TEST_F(NodeSearch, GoesOnAfterAMatchThatClimbsToTheRoot)
{
    ClytNodeList other;
    Fill(other, {
                    Record(1, LYT_TREE_SYMBOL, "outside", "x"),
                    Record(0, LYT_TREE_GROUP, "group", "g"),
                    Record(1, LYT_TREE_SYMBOL, "inside", "x"),
                });
    EXPECT_EQ(Found(other, 'G', "x"), "group");
}

TEST_F(NodeSearch, FindsNothingForAKindThatNoNodeHas)
{
    EXPECT_EQ(Found(nodes, 'W', "roof"), "-");
    EXPECT_EQ(Found(nodes, '\0', "roof"), "-");
}

TEST_F(NodeSearch, FindsNothingInAnEmptyList)
{
    EXPECT_EQ(Found(ClytNodeList(), 'S', "a"), "-");
}

TEST_F(NodeSearch, FindsWhatAClimbBackThroughTheListFinds)
{
    // Every shape of five other with three levels and all types; keys differ in their last letter only.
    for (unsigned shape = 0; shape < 9U * 9U * 9U * 9U * 9U; shape += 7)
    {
        std::vector<lytTreeRecord> records;
        unsigned rest = shape;
        for (char letter = 'a'; letter < 'f'; ++letter, rest /= 9)
            records.push_back(Record(static_cast<int>(rest % 3), static_cast<int>(rest / 3 % 3) + 1, "",
                                     std::string(letter % 2 != 0 ? "k" : "l") + letter));
        ClytNodeList other;
        Fill(other, records);
        for (const char kind : {'S', 'G', 'H'})
            for (const char* text : {"k", "l", "kc", "ld", ""})
                ASSERT_EQ(lytFindNode(other, kind, text), SearchByWalkingBack(other, kind, text))
                    << shape << kind << text;
    }
}

TEST_F(NodeSearch, FindsTheFirstNodeWithAnItem)
{
    RecordedItems items;
    lytFillFromList(nodes, items, 'S');
    EXPECT_EQ(lytFindNodeByItem(nodes, RecordedItems::Item(3)), &NodeAt(nodes, 2));
    EXPECT_EQ(lytFindNodeByItem(nodes, RecordedItems::Item(99)), nullptr);
}

TEST_F(NodeSearch, FindsNoNodeByTheNullItem)
{
    EXPECT_EQ(lytFindNodeByItem(nodes, nullptr), nullptr);
}

TEST_F(NodeMarks, MoveToOneNode)
{
    EXPECT_EQ(lytFindCurrentNode(nodes), nullptr);
    lytMarkCurrentNode(nodes, &NodeAt(nodes, 3));
    lytMarkCurrentNode(nodes, &NodeAt(nodes, 1));
    EXPECT_EQ(lytFindCurrentNode(nodes), &NodeAt(nodes, 1));
    EXPECT_EQ(NodeAt(nodes, 3).m_nCurrent, 0);
}

TEST_F(NodeMarks, RestoreTheNodeSelectedAtOpening)
{
    lytMarkInitialNode(nodes, &NodeAt(nodes, 2));
    lytMarkCurrentNode(nodes, &NodeAt(nodes, 4));
    lytRestoreCurrentNode(nodes);
    EXPECT_EQ(lytFindCurrentNode(nodes), &NodeAt(nodes, 2));
    EXPECT_EQ(NodeAt(nodes, 4).m_nCurrent, 0);
}

TEST_F(NodeMarks, RestoreToNoneWhenNoneWasSelected)
{
    lytMarkCurrentNode(nodes, &NodeAt(nodes, 4));
    lytRestoreCurrentNode(nodes);
    EXPECT_EQ(lytFindCurrentNode(nodes), nullptr);
}

TEST(WizardChoice, NamesTypeKeyAndLabelWithItsMarks)
{
    ClytNodeList nodes;
    Fill(nodes, {
                    Record(0, LYT_TREE_HEADING, "a##b", "h"),
                    Record(0, LYT_TREE_GROUP, "c##d", "g"),
                    Record(0, LYT_TREE_SYMBOL, "e/f", "s"),
                });
    EXPECT_EQ(lytWizardChoice(NodeAt(nodes, 0)), "H//a##b");
    EXPECT_EQ(lytWizardChoice(NodeAt(nodes, 1)), "G/g/c##d");
    EXPECT_EQ(lytWizardChoice(NodeAt(nodes, 2)), "S/s/e/f");
}
