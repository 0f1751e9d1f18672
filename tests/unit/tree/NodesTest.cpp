// What of the catalogue a browser in memory cannot show, or shows too slowly for all shapes that a catalogue may have.
#include "tree/ClytChildCursor.h"
#include "tree/ClytWizardQueue.h"
#include "tree/NodeExpansion.h"
#include "tree/NodeFill.h"
#include "tree/NodeSearch.h"

#include "support/Cases.h"

#include <array>
#include <climits>
#include <cstring>
#include <vector>

namespace
{

lytTreeRecord Record(int level, int type, const std::string& label, const std::string& key)
{
    lytTreeRecord record = {};
    record.nLevel = level;
    record.nType = type;
    std::memcpy(record.szLabel, label.data(), label.size());
    std::memcpy(record.szKey, key.data(), key.size());
    return record;
}

// What the source below delivers.
std::vector<lytTreeRecord> served;
size_t delivered = 0;

int32_t Start(const char* /*selection*/)
{
    delivered = 0;
    return 1;
}

int32_t Next(lytTreeRecord* record)
{
    if (delivered == served.size())
        return 0;
    *record = served[delivered++];
    return 1;
}

// A tree without a window. Items are numbered from 1, 0 is the root.
class Items : public ClytTreeItems
{
public:
    HTREEITEM InsertItem(HTREEITEM parent, const char* /*text*/, int image) override
    {
        parents.push_back(NumberOf(parent));
        images += std::to_string(image);
        return reinterpret_cast<HTREEITEM>(m_places.data() + parents.size());
    }
    void ExpandItem(HTREEITEM item) override { expanded += std::to_string(NumberOf(item)); }
    HTREEITEM GetRootItem() const override { return nullptr; }

    int NumberOf(HTREEITEM item) const
    {
        return item == nullptr ? 0 : static_cast<int>(reinterpret_cast<char*>(item) - m_places.data());
    }

    std::vector<int> parents;
    std::string images;
    std::string expanded;

private:
    std::array<char, 1000> m_places{};
};

class Nodes : public testing::Test
{
protected:
    void Fill(std::vector<lytTreeRecord> records)
    {
        served = std::move(records);
        lytFillFromSource(nodes, {&Start, &Next}, &items, 'S');
    }
    // `text|path` of each read until one finds nothing.
    std::string ReadChildren()
    {
        std::string lines;
        CString text;
        CString path;
        while (cursor.Read(nodes, text, path))
            lines += (text + "|" + path + ";").GetString();
        return lines;
    }

    ClytNodeList nodes;
    Items items;
    ClytChildCursor cursor;
};

const ClytNode& NodeAt(const ClytNodeList& nodes, int index)
{
    return *nodes.GetAt(nodes.FindIndex(index));
}

// The number of each entry's parent, by a walk back to the nearest entry with a smaller level.
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

// The search, climbing back through the list from each match.
const ClytNode* SearchByWalkingBack(const ClytNodeList& nodes, char kind, const std::string& text)
{
    for (int match = 0; match < nodes.GetCount(); ++match)
    {
        const std::string key = NodeAt(nodes, match).key;
        if (kind == 'G' ? key != text : !key.starts_with(text))
            continue;
        for (int place = match; place >= 0;)
        {
            const ClytNode* node = &NodeAt(nodes, place);
            if (node->type == kind)
                return node;
            while (place >= 0 && NodeAt(nodes, place).level >= node->level)
                --place;
        }
    }
    return nullptr;
}

std::string Shown(const std::string& label)
{
    char shown[lytShownLabelSize];
    lytExpandLabel(shown, label.c_str());
    return shown;
}

// All deliveries of a result: the first text, then each later one, "-" where nothing is handed out.
std::string Deliveries(const std::string& result)
{
    ClytWizardQueue queue;
    EXPECT_FALSE(queue.IsPending());
    std::string texts = queue.Begin(result.c_str()).GetString();
    while (queue.IsPending())
        texts += std::string(" ") + queue.Deliver().value_or("-").GetString();
    return texts;
}

} // namespace

TEST(TreeLabel, ShowsThreeBlanksInPlaceOfEachMark)
{
    for (unsigned pattern = 0; pattern < 1U << 12; ++pattern)
    {
        std::string label;
        for (int bit = 0; bit < 12; ++bit)
            label += (pattern >> bit & 1) != 0 ? '#' : 'x';
        std::string replaced = label;
        for (size_t mark = 0; (mark = replaced.find("##")) != std::string::npos;)
            replaced.replace(mark, 2, "   ");
        ASSERT_EQ(Shown(label), replaced) << label;
    }
    EXPECT_EQ(Shown(std::string(99, '#')), std::string(147, ' ') + "#");
    EXPECT_EQ(Shown(std::string(1000, '#')).size(), 254U);
}

TEST(WizardQueue, DeliversTheHeadAndThenEachItem)
{
    ExpectEach(Deliveries,
               {{"head/LIST{a|b|c", "head/LIST{ a| b| c"},
                {"head/LIST{a|", "head/LIST{ -"},
                {"head/LIST{a|b|", "head/LIST{ a| -"},
                {"head/LIST{", "head/LIST{ "},
                {"head/LIST{|", "head/LIST{ -"},
                {"head/LIST{|b", "head/LIST{ | b"},
                {"h{x/LIST more{a|b", "h{x/LIST more{ a| b"},
                {"/LIST{a{b|c", "/LIST{ a{b| c"},
                // Without the mark of a list the whole result is searched, without a brace the rest is taken.
                {"head{a|b", "head{ a| b"},
                {"a|b", " a| b"},
                {"", " "},
                {"{a|b", "{ a| b"},
                {"h{ead/LISTa|b", "h{ead/LIST a| b"},
                {"head/LIST", "head/LIST "}});
}

TEST_F(Nodes, HaveTheParentsThatAWalkBackFindsInEveryShapeOfSixRecords)
{
    std::vector<std::vector<int>> shapes = {{INT_MIN, INT_MAX, 0, INT_MIN, -1, INT_MAX}, {-3, -2, -3, -4, -1}};
    for (int shape = 0; shape < 4 * 4 * 4 * 4 * 4 * 4; ++shape)
    {
        shapes.emplace_back();
        for (int rest = shape; shapes.back().size() < 6; rest /= 4)
            shapes.back().push_back(rest % 4);
    }
    for (const std::vector<int>& levels : shapes)
    {
        std::vector<lytTreeRecord> records;
        for (const int level : levels)
            records.push_back(Record(level, LYT_TREE_HEADING, "", ""));
        items.parents.clear();
        Fill(records);
        ASSERT_EQ(items.parents, ParentsByWalkingBack(levels)) << testing::PrintToString(levels);
        Items again;
        lytFillFromList(nodes, again, 'S');
        ASSERT_EQ(again.parents, items.parents);
    }
}

TEST_F(Nodes, AreFoundWhereAClimbBackThroughTheListFindsThem)
{
    // Shapes of five records with three levels and all types; keys differ in their last letter only.
    for (unsigned shape = 0; shape < 9U * 9U * 9U * 9U * 9U; shape += 7)
    {
        std::vector<lytTreeRecord> records;
        unsigned rest = shape;
        for (char letter = 'a'; letter < 'f'; ++letter, rest /= 9)
            records.push_back(Record(static_cast<int>(rest % 3), static_cast<int>(rest / 3 % 3) + 1, "",
                                     std::string(letter % 2 != 0 ? "k" : "l") + letter));
        Fill(records);
        for (const char kind : {'S', 'G', 'H', 'W'})
        {
            for (const char* text : {"k", "l", "kc", "ld", ""})
                ASSERT_EQ(lytFindNode(nodes, kind, text), SearchByWalkingBack(nodes, kind, text)) << shape << kind;
        }
    }
}

TEST_F(Nodes, TakeTypeAndTextsOfTheirRecords)
{
    const std::string unended(100, 'x');
    Fill({Record(-7, 0, "a##b", "key"), Record(0, LYT_TREE_GROUP, unended, "k"), Record(0, 7, "l", unended),
          Record(0, INT_MIN, "", ""), Record(0, LYT_TREE_SYMBOL, std::string(99, 'x'), std::string(99, 'y')),
          Record(0, 4, "", "")});
    // A number that is no type's takes over the type before, which is a heading at first.
    EXPECT_EQ(items.images, "011122");
    EXPECT_EQ(NodeAt(nodes, 0).level, -7);
    EXPECT_STREQ(NodeAt(nodes, 0).label, "a##b");
    // A text without an end is empty.
    EXPECT_STREQ(NodeAt(nodes, 1).label, "");
    EXPECT_STREQ(NodeAt(nodes, 1).key, "k");
    EXPECT_STREQ(NodeAt(nodes, 2).label, "l");
    EXPECT_STREQ(NodeAt(nodes, 2).key, "");
    EXPECT_EQ(NodeAt(nodes, 4).label + std::string(NodeAt(nodes, 4).key), std::string(99, 'x') + std::string(99, 'y'));
    for (const ClytNode& node : nodes)
        EXPECT_TRUE(node.current == 0 && node.itemState == 0 && node.initial == 0);
}

TEST_F(Nodes, EndWhenTheirSourceDoesNot)
{
    const ClytTreeSource endless = {&Start, +[](lytTreeRecord*) -> int32_t { return 1; }};
    lytFillFromSource(nodes, endless, nullptr, 'S');
    EXPECT_EQ(nodes.GetCount(), 1'000'000);
}

TEST_F(Nodes, AreOpenedByTheirLevelOrByTheExactStateThatTheyWereLeftIn)
{
    Fill({Record(0, LYT_TREE_HEADING, "", "a"), Record(1, LYT_TREE_GROUP, "", "b"),
          Record(2, LYT_TREE_SYMBOL, "", "a")});
    const auto opened = [&](int levels, bool byLevels)
    {
        items.expanded.clear();
        EXPECT_EQ(items.NumberOf(lytExpandNodes(nodes, {levels, byLevels, "a"}, items)), 3) << "the last with the key";
        return items.expanded;
    };
    EXPECT_EQ(opened(INT_MIN, true), "");
    EXPECT_EQ(opened(0, true), "1");
    EXPECT_EQ(opened(3, true), "12");
    EXPECT_EQ(opened(INT_MAX, true), "123");
    for (UINT state = 0; state < 256; ++state)
    {
        nodes.GetAt(nodes.FindIndex(1))->itemState = state;
        EXPECT_EQ(opened(9, false), state == 96 || state == 98 ? "2" : "") << state;
    }
}

TEST_F(Nodes, AreWalkedFromAGroupOnWhileTheyAreSymbolsOfTheFirstLevelRead)
{
    EXPECT_EQ(ReadChildren(), "");
    Fill({Record(0, LYT_TREE_HEADING, "House", "h"), Record(1, LYT_TREE_GROUP, "Roof", "roof"),
          Record(2, LYT_TREE_SYMBOL, "Tile##red", "t1"), Record(2, LYT_TREE_SYMBOL, "Tin", "t2"),
          Record(1, LYT_TREE_GROUP, "Wall", "wall"), Record(3, LYT_TREE_SYMBOL, "Brick", "b1"),
          Record(1, LYT_TREE_GROUP, "Last", "last")});
    for (const char* key : {"last", "unknown", "Roof"})
        EXPECT_FALSE(cursor.Start(nodes, key)) << key;
    EXPECT_TRUE(cursor.Start(nodes, "roof"));
    // A heading moves nothing.
    EXPECT_TRUE(cursor.Start(nodes, "h"));
    EXPECT_EQ(ReadChildren(), "Tile   red|t1\\Tile##red;Tin|t2\\Tin;");
    EXPECT_TRUE(cursor.Start(nodes, "wall"));
    EXPECT_EQ(ReadChildren(), "");
    EXPECT_TRUE(cursor.Start(nodes, "roof"));
    cursor.Forget();
    EXPECT_EQ(ReadChildren(), "");
}

TEST_F(Nodes, AreEmptiedWithTheWalkOverThem)
{
    Fill({Record(0, LYT_TREE_GROUP, "", "g"), Record(1, LYT_TREE_SYMBOL, "", "s")});
    lytFillFromSource(lytSymbolNodes, {&Start, &Next}, nullptr, 'S');
    lytFillFromSource(lytParaNodes, {&Start, &Next}, nullptr, 'G');
    CString text;
    // Filled again, and deleted.
    using Act = void (*)();
    for (const Act act : {Act(
                              [] {
                                  lytFillFromSource(lytSymbolNodes, {&Start, &Next}, nullptr, 'S');
                              }),
                          Act(lytDeleteNodes)})
    {
        ASSERT_TRUE(lytChildCursor.Start(lytSymbolNodes, "g"));
        act();
        EXPECT_FALSE(lytChildCursor.Read(lytSymbolNodes, text, text));
    }
    EXPECT_TRUE(lytSymbolNodes.IsEmpty());
    EXPECT_TRUE(lytParaNodes.IsEmpty());
}
