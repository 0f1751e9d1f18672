#include "tree/NodeFill.h"

#include "tree/ClytChildCursor.h"
#include "unit/tree/TreeRecords.h"

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>

namespace
{

using Lines = std::vector<std::string>;

// The letters of the nodes' types in list order.
std::string TypesOf(const ClytNodeList& nodes)
{
    std::string types;
    for (POSITION position = nodes.GetHeadPosition(); position != nullptr;)
        types += nodes.GetNext(position)->m_cType;
    return types;
}

// The number of each entry's parent (0 is the root), as the told rule finds it: a walk back to the nearest entry with a
// smaller level.
std::vector<int> ParentsByWalkingBack(const std::vector<int>& levels)
{
    std::vector<int> parents;
    for (size_t entry = 0; entry < levels.size(); ++entry)
    {
        size_t before = entry;
        while (before > 0 && levels[before - 1] >= levels[entry])
            --before;
        parents.push_back(static_cast<int>(before));
    }
    return parents;
}

std::vector<lytTreeRecord> RecordsOf(const std::vector<int>& levels)
{
    std::vector<lytTreeRecord> records;
    records.reserve(levels.size());
    for (const int level : levels)
        records.push_back(Record(level, LYT_TREE_HEADING, "", ""));
    return records;
}

std::vector<int> ParentsOf(const RecordedItems& items)
{
    std::vector<int> parents;
    for (const std::string& line : items.inserted)
        parents.push_back(std::stoi(line));
    return parents;
}

const std::vector<lytTreeRecord> house = {
    Record(0, LYT_TREE_HEADING, "House", "h"),
    Record(1, LYT_TREE_GROUP, "Roof", "g1"),
    Record(2, LYT_TREE_SYMBOL, "Tile", "s1"),
    Record(1, LYT_TREE_GROUP, "Wall", "g2"),
};

class NodeFill : public testing::Test
{
protected:
    // Fills the list and the items from these records.
    void Fill(std::vector<lytTreeRecord> records, char kind = 'S')
    {
        RecordedSource source(std::move(records));
        lytFillFromSource(nodes, source.Source(), &items, kind);
    }

    ClytNodeList nodes;
    RecordedItems items;
};

} // namespace

TEST(ExpandLabel, PutsThreeBlanksInPlaceOfEachMark)
{
    static const struct
    {
        const char* label;
        const char* shown;
    } cases[] = {
        {"", ""},           {"plain", "plain"},       {"#", "#"},
        {"##", "   "},      {"a##b##c", "a   b   c"}, {"a###b", "a   #b"},
        {"####", "      "}, {"#####", "      #"},     {"# #", "# #"},
        {"##x#", "   x#"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.label);
        char shown[lytShownLabelSize];
        lytExpandLabel(shown, c.label);
        EXPECT_STREQ(shown, c.shown);
    }
}

TEST(ExpandLabel, GivesWhatReplacingTheFirstMarkAgainAndAgainGives)
{
    for (unsigned pattern = 0; pattern < 1U << 12; ++pattern)
    {
        std::string label;
        for (int bit = 0; bit < 12; ++bit)
            label += (pattern >> bit & 1) != 0 ? '#' : 'x';
        std::string replaced = label;
        for (size_t mark = 0; (mark = replaced.find("##")) != std::string::npos;)
            replaced.replace(mark, 2, "   ");
        char shown[lytShownLabelSize];
        lytExpandLabel(shown, label.c_str());
        ASSERT_EQ(shown, replaced) << label;
    }
}

TEST(ExpandLabel, HasRoomForTheLongestLabel)
{
    char shown[lytShownLabelSize];
    lytExpandLabel(shown, std::string(99, '#').c_str());
    EXPECT_EQ(shown, std::string(147, ' ') + "#");
}

TEST(ExpandLabel, NeverWritesBeyondItsTarget)
{
    struct
    {
        char shown[lytShownLabelSize];
        char guard = '!';
    } target;
    lytExpandLabel(target.shown, std::string(1000, '#').c_str());
    EXPECT_EQ(std::string(target.shown).size(), 254U);
    EXPECT_EQ(target.guard, '!');
}

TEST_F(NodeFill, TakesARecordOverAsItIs)
{
    RecordedSource source({Record(-7, LYT_TREE_SYMBOL, "a##b", "key")});
    lytFillFromSource(nodes, source.Source(), nullptr, 'S');
    ASSERT_EQ(nodes.GetCount(), 1);
    const ClytNode& node = *nodes.GetHead();
    EXPECT_EQ(node.m_hItem, nullptr);
    EXPECT_EQ(node.m_nLevel, -7);
    EXPECT_STREQ(node.m_szLabel, "a##b");
    EXPECT_STREQ(node.m_szKey, "key");
    EXPECT_EQ(node.m_cType, 'S');
    EXPECT_EQ(node.m_nCurrent, 0);
    EXPECT_EQ(node.m_nItemState, 0U);
    EXPECT_EQ(node.m_nInitial, 0);
}

TEST_F(NodeFill, StartsTheSourceWithTheEmptyText)
{
    RecordedSource source(house);
    lytFillFromSource(nodes, source.Source(), nullptr, 'S');
    EXPECT_EQ(source.selections, Lines({""}));
}

TEST_F(NodeFill, LeavesTheListEmptyWhenTheSourceRefusesToStart)
{
    lytFillFromSource(nodes, RecordedSource::Refusing(), nullptr, 'S');
    EXPECT_TRUE(nodes.IsEmpty());
}

TEST_F(NodeFill, TakesAnEmptyRunForAnEmptyCatalogue)
{
    Fill({});
    EXPECT_TRUE(nodes.IsEmpty());
    EXPECT_TRUE(items.inserted.empty());
}

TEST_F(NodeFill, EndsARunThatDoesNotEnd)
{
    lytFillFromSource(nodes, RecordedSource::Endless(), nullptr, 'S');
    EXPECT_EQ(nodes.GetCount(), 1'000'000);
}

TEST_F(NodeFill, KeepsNothingOfARunThatBreaksOff)
{
    RecordedSource source(house);
    source.Interrupt(3, [] { throw std::runtime_error("broken"); });
    EXPECT_THROW(lytFillFromSource(nodes, source.Source(), &items, 'S'), std::runtime_error);
    EXPECT_TRUE(nodes.IsEmpty());
}

TEST_F(NodeFill, KeepsTheListOfARunThatBreaksOffAsItWas)
{
    RecordedSource source(house);
    lytFillFromSource(nodes, source.Source(), nullptr, 'S');
    const ClytNode* kept = nodes.GetTail();
    source.Interrupt(3, [] { throw std::runtime_error("broken"); });
    EXPECT_THROW(lytFillFromSource(nodes, source.Source(), nullptr, 'S'), std::runtime_error);
    EXPECT_EQ(TypesOf(nodes), "HGSG");
    EXPECT_EQ(nodes.GetTail(), kept);
}

TEST_F(NodeFill, OutlivesASourceThatEmptiesTheListFromInsideACall)
{
    RecordedSource source(house);
    source.Interrupt(3, [&] { nodes.RemoveAll(); });
    lytFillFromSource(nodes, source.Source(), &items, 'S');
    EXPECT_EQ(TypesOf(nodes), "HGSG");
    EXPECT_EQ(items.inserted, Lines({"0: House [0]", "1: Roof [1]", "2: Tile [2]", "1: Wall [1]"}));
}

TEST_F(NodeFill, KeepsTheRunThatEndsLastWhenASourceFillsTheListFromInsideACall)
{
    RecordedSource source(house);
    source.Interrupt(2, [&] { nodes.AddTail(std::make_unique<ClytNode>(nullptr, 0)); });
    lytFillFromSource(nodes, source.Source(), &items, 'S');
    EXPECT_EQ(TypesOf(nodes), "HGSG");
    EXPECT_EQ(RecordedItems::Number(NodeAt(nodes, 3).m_hItem), 4);
}

TEST_F(NodeFill, EndsTheWalkOverTheListThatItReplaces)
{
    RecordedSource source(house);
    const auto beginWalk = [&]
    {
        nodes.AddTail(std::make_unique<ClytNode>(nullptr, 0));
        nodes.AddTail(std::make_unique<ClytNode>(nullptr, 0)).m_cType = 'S';
        EXPECT_TRUE(lytChildCursor.Start(nodes, ""));
    };
    source.Interrupt(2, beginWalk);
    lytFillFromSource(nodes, source.Source(), nullptr, 'S');
    CString text;
    CString path;
    EXPECT_FALSE(lytChildCursor.Read(nodes, text, path));
}

TEST_F(NodeFill, KeepsTextsOfNinetyNineCharacters)
{
    const std::string label(99, 'l');
    const std::string key(99, 'k');
    Fill({Record(0, LYT_TREE_SYMBOL, label, key)});
    EXPECT_EQ(nodes.GetHead()->m_szLabel, label);
    EXPECT_EQ(nodes.GetHead()->m_szKey, key);
}

TEST_F(NodeFill, TakesATextWithoutAnEndForEmpty)
{
    Fill({Record(0, LYT_TREE_SYMBOL, std::string(100, 'l'), "key"),
          Record(0, LYT_TREE_SYMBOL, "label", std::string(100, 'k'))});
    EXPECT_STREQ(NodeAt(nodes, 0).m_szLabel, "");
    EXPECT_STREQ(NodeAt(nodes, 0).m_szKey, "key");
    EXPECT_STREQ(NodeAt(nodes, 1).m_szLabel, "label");
    EXPECT_STREQ(NodeAt(nodes, 1).m_szKey, "");
    EXPECT_EQ(items.inserted, Lines({"0:  [2]", "0: label [2]"}));
}

TEST_F(NodeFill, CarriesTheTypeOverAnUnknownNumber)
{
    Fill({
        Record(0, 0, "", ""),
        Record(0, LYT_TREE_GROUP, "", ""),
        Record(0, 7, "", ""),
        Record(0, INT_MIN, "", ""),
        Record(0, LYT_TREE_SYMBOL, "", ""),
        Record(0, 4, "", ""),
    });
    EXPECT_EQ(TypesOf(nodes), "HGGGSS");
}

TEST_F(NodeFill, StoresARecordOfTypeSevenAfterAGroupAsAGroup)
{
    Fill({Record(0, LYT_TREE_GROUP, "a", ""), Record(0, 7, "b", "")});
    EXPECT_EQ(TypesOf(nodes), "GG");
    EXPECT_EQ(items.inserted, Lines({"0: a [1]", "0: b [1]"}));
}

TEST_F(NodeFill, StartsEachLoadFromHeading)
{
    RecordedSource source({Record(0, 7, "", ""), Record(0, LYT_TREE_SYMBOL, "", "")});
    for (int load = 0; load < 2; ++load)
    {
        ClytNodeList loaded;
        lytFillFromSource(loaded, source.Source(), nullptr, 'S');
        EXPECT_EQ(TypesOf(loaded), "HS");
    }
}

TEST_F(NodeFill, MakesLevelsThreeAndTwoChildrenOfLevelOne)
{
    Fill(RecordsOf({1, 3, 2}));
    EXPECT_EQ(ParentsOf(items), std::vector<int>({0, 1, 1}));
}

TEST_F(NodeFill, MakesTwoRecordsOfOneLevelSiblings)
{
    Fill(RecordsOf({1, 2, 2}));
    EXPECT_EQ(ParentsOf(items), std::vector<int>({0, 1, 1}));
}

TEST_F(NodeFill, FindsTheParentsThatAWalkBackFinds)
{
    static const std::vector<int> shapes[] = {
        {0},
        {5, 0},
        {5, 4, 3, 2, 1},
        {9, 10, 3, 4, 4, 2, 7},
        {0, 1, 2, 3, 4, 0, 4, 3, 2, 1},
        {0, 2, 4, 1, 3, 0, 9},
        {INT_MIN, INT_MAX, 0, INT_MIN, -1, INT_MAX},
        {-3, -2, -3, -4, -1},
        {7, 7, 7},
    };
    for (const auto& levels : shapes)
    {
        SCOPED_TRACE(testing::PrintToString(levels));
        RecordedSource source(RecordsOf(levels));
        ClytNodeList loaded;
        RecordedItems shown;
        lytFillFromSource(loaded, source.Source(), &shown, 'S');
        EXPECT_EQ(ParentsOf(shown), ParentsByWalkingBack(levels));

        RecordedItems again;
        lytFillFromList(loaded, again, 'S');
        EXPECT_EQ(ParentsOf(again), ParentsByWalkingBack(levels));
    }
}

TEST_F(NodeFill, FindsTheParentsThatAWalkBackFindsInEveryShapeOfSixRecords)
{
    for (int shape = 0; shape < 4 * 4 * 4 * 4 * 4 * 4; ++shape)
    {
        std::vector<int> levels;
        for (int rest = shape; levels.size() < 6; rest /= 4)
            levels.push_back(rest % 4);
        RecordedSource source(RecordsOf(levels));
        ClytNodeList loaded;
        RecordedItems shown;
        lytFillFromSource(loaded, source.Source(), &shown, 'S');
        ASSERT_EQ(ParentsOf(shown), ParentsByWalkingBack(levels)) << testing::PrintToString(levels);
    }
}

TEST_F(NodeFill, ShowsEveryEntryInRecordOrder)
{
    Fill(house);
    EXPECT_EQ(items.inserted, Lines({"0: House [0]", "1: Roof [1]", "2: Tile [2]", "1: Wall [1]"}));
    EXPECT_EQ(RecordedItems::Number(NodeAt(nodes, 3).m_hItem), 4);
}

TEST_F(NodeFill, ShowsALabelExpandedAndKeepsItsMarks)
{
    Fill({Record(0, LYT_TREE_SYMBOL, "a##b##c", "")});
    EXPECT_EQ(items.inserted, Lines({"0: a   b   c [2]"}));
    EXPECT_STREQ(nodes.GetHead()->m_szLabel, "a##b##c");
}

TEST_F(NodeFill, HoldsSymbolsUnshownForGroups)
{
    Fill(house, 'G');
    EXPECT_EQ(items.inserted, Lines({"0: House [0]", "1: Roof [1]", "1: Wall [1]"}));
    EXPECT_EQ(TypesOf(nodes), "HGSG");
    EXPECT_EQ(NodeAt(nodes, 2).m_hItem, nullptr);

    RecordedItems later;
    lytFillFromList(nodes, later, 'S');
    EXPECT_EQ(later.inserted.size(), 4U);
}

TEST_F(NodeFill, SendsWhatStandsUnderAnUnshownEntryToTheRoot)
{
    Fill({Record(0, LYT_TREE_HEADING, "top", ""), Record(1, LYT_TREE_SYMBOL, "hidden", ""),
          Record(2, LYT_TREE_GROUP, "below", "")},
         'G');
    EXPECT_EQ(items.inserted, Lines({"0: top [0]", "0: below [1]"}));
}

TEST_F(NodeFill, ShowsATypeTakenOverToGroupsOnlyOnLaterOpenings)
{
    RecordedSource source({Record(0, LYT_TREE_GROUP, "a", ""), Record(0, 7, "b", "")});
    RecordedItems first;
    lytFillFromSource(nodes, source.Source(), &first, 'G');
    EXPECT_EQ(first.inserted, Lines({"0: a [1]"}));
    RecordedItems second;
    lytFillFromList(nodes, second, 'G');
    EXPECT_EQ(second.inserted, Lines({"0: a [1]", "0: b [1]"}));
}

TEST_F(NodeFill, GivesEachNodeTheItemOfTheLatestControl)
{
    Fill(house);
    RecordedItems later;
    lytFillFromList(nodes, later, 'G');
    EXPECT_EQ(later.inserted, Lines({"0: House [0]", "1: Roof [1]", "1: Wall [1]"}));
    EXPECT_EQ(NodeAt(nodes, 2).m_hItem, nullptr);
    EXPECT_EQ(RecordedItems::Number(NodeAt(nodes, 3).m_hItem), 3);
}
