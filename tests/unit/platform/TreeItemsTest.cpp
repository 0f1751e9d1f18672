// The rows of a tree in memory.
#include <afxcmn.h>

#include "native/TreeItems.h"
#include "support/Dice.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using platform::TreeItems;

// The rows as a walk over the whole tree finds them.
std::vector<size_t> Walked(const TreeItems& items)
{
    std::vector<size_t> rows;
    std::vector<size_t> due(items.At(TreeItems::root).children.rbegin(), items.At(TreeItems::root).children.rend());
    while (!due.empty())
    {
        const size_t item = due.back();
        due.pop_back();
        rows.push_back(item);
        const std::vector<size_t>& children = items.At(item).children;
        if (items.IsExpanded(item))
            due.insert(due.end(), children.rbegin(), children.rend());
    }
    return rows;
}

void ExpectRows(const TreeItems& items, size_t last)
{
    const std::vector<size_t> rows = Walked(items);
    ASSERT_EQ(items.CountRows(), rows.size());
    std::vector<size_t> rowOf(last + 1, TreeItems::none);
    for (size_t row = 0; row < rows.size(); ++row)
    {
        rowOf[rows[row]] = row;
        ASSERT_EQ(items.AtRow(row), rows[row]) << row;
    }
    EXPECT_EQ(items.AtRow(rows.size()), TreeItems::root);
    for (size_t item = 0; item <= last; ++item)
        ASSERT_EQ(items.RowOf(item), rowOf[item]) << item;
}

} // namespace

TEST(TreeItems, HaveTheRowsThatNoCollapsedItemHides)
{
    Dice dice(1);
    TreeItems items;
    size_t last = 0;
    for (int round = 0; round < 300; ++round)
    {
        last = items.Insert(dice.Below(last + 1), "x", 0);
        const size_t changed = 1 + dice.Below(last);
        items.SetState(changed, dice.Is(3) ? 0U : UINT{TVIS_EXPANDED});
        ExpectRows(items, last);
    }
    items.Clear();
    EXPECT_EQ(items.CountRows(), 0U);
    EXPECT_EQ(items.Find(1), TreeItems::none);
    EXPECT_EQ(items.AtRow(0), TreeItems::root);
}

TEST(TreeItems, KnowTheirNeighbours)
{
    TreeItems items;
    const size_t first = items.Insert(TreeItems::root, "first", 0);
    const size_t second = items.Insert(TreeItems::root, "second", 0);
    EXPECT_EQ(items.Sibling(first, 1), second);
    EXPECT_EQ(items.Sibling(second, -1), first);
    EXPECT_EQ(items.Sibling(second, 1), TreeItems::root);
    EXPECT_EQ(items.Sibling(first, -1), TreeItems::root);
}

// From the innermost item outwards: each is expanded while those above it still hide it.
TEST(TreeInMemory, MayBeAsDeepAsItHasItems)
{
    constexpr int depth = 200'000;
    CWnd host;
    host.SubclassWindow(
        ::CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr));
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create("SysTreeView32", "", WS_VISIBLE, CRect(0, 0, 100, 100), &host, 1));
    std::vector<HTREEITEM> chain{TVI_ROOT};
    for (int level = 0; level < depth; ++level)
        chain.push_back(tree.InsertItem("x", 0, 0, chain.back()));
    for (size_t level = chain.size() - 2; level >= 1; --level)
        EXPECT_TRUE(tree.Expand(chain[level], TVE_EXPAND));
    EXPECT_EQ(tree.GetNextItem(chain[depth - 1], TVGN_NEXTVISIBLE), chain[depth]);
    EXPECT_EQ(tree.GetNextItem(chain[depth], TVGN_NEXTVISIBLE), nullptr);
    EXPECT_TRUE(tree.SelectItem(chain[depth]));
    EXPECT_EQ(tree.GetSelectedItem(), chain[depth]);
}
