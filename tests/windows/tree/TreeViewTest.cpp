// What is in the browser when it opens: entries, pictures, open branches, the selected entry.
#include "TreeFixture.h"

class TreeView : public TreeTest
{
protected:
    TreeView() { UseSource(); }
};

TEST_F(TreeView, ShowsEveryEntryInRecordOrder)
{
    EXPECT_EQ(ItemsShown("S"), houseShown);
    EXPECT_EQ(ItemsShown("W"), houseShown);
    EXPECT_EQ(ItemsShown("S"), houseShown);
}

TEST_F(TreeView, ShowsNoSymbolsToGroups)
{
    const Lines groups = {"House [0]", "  Roof [1]", "  Wall [1]", "Garden [0]"};
    EXPECT_EQ(ItemsShown("G"), groups);
    EXPECT_EQ(ItemsShown("G"), groups);
}

TEST_F(TreeView, ShowsGroupsFromTheListThatASymbolDialogRead)
{
    ItemsShown("S");
    EXPECT_EQ(ItemsShown("G"), Lines({"House [0]", "  Roof [1]", "  Wall [1]", "Garden [0]"}));
    EXPECT_EQ(Pick("G", "Wall").text, "wall");
    EXPECT_EQ(Starts('S'), 1);
}

TEST_F(TreeView, ShowsTheParaTreeForThatLetterOnly)
{
    EXPECT_EQ(ItemsShown("P"), Lines({"Path [1]", "  Gravel [1]", "Fence [1]"}));
    EXPECT_EQ(ItemsShown("S"), houseShown);
}

TEST_F(TreeView, SecondNameIsTheSameFunction)
{
    using OpenTreeView = decltype(lytOpenTreeView);
    EXPECT_EQ(Get<OpenTreeView>("lytOpenTreeViewPara"), Get<OpenTreeView>("lytOpenTreeView"));
}

TEST_F(TreeView, HasThreePicturesOfSixteenPixels)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             // NOLINTNEXTLINE(performance-no-int-to-ptr): the message's result is a handle
             auto* images = reinterpret_cast<HIMAGELIST>(SendMessageA(tree.Tree(), TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
             int width = 0;
             int height = 0;
             EXPECT_EQ(ImageList_GetImageCount(images), 3);
             EXPECT_TRUE(ImageList_GetIconSize(images, &width, &height));
             EXPECT_EQ(width, 16);
             EXPECT_EQ(height, 16);
             tree.Cancel();
         });
}

TEST_F(TreeView, OpensTheLevelsBelowTheNumberLessOneAtFirst)
{
    Configure("TreeLevels=3\n");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Roof", "Wall", "Garden"}));
    Configure("TreeLevels=2\n");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Garden"}));
    Configure("TreeLevels=1\n");
    EXPECT_EQ(ItemsOpen("S"), Lines());
}

TEST_F(TreeView, OpensEveryLevelForANumberOutOfRange)
{
    Configure("TreeLevels=4294967297\n");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Roof", "Wall", "Garden"}));
}

TEST_F(TreeView, OpensTheFirstLevelWithoutAUsableNumber)
{
    for (const char* lines : {"", "TreeLevels=0\n", "TreeLevels=many\n", "TreeLevels=\n"})
    {
        SCOPED_TRACE(lines);
        Configure(lines);
        EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Garden"}));
    }
}

TEST_F(TreeView, StartsTheParaTreeClosedAndWithoutASelection)
{
    Configure("TreeLevels=9\n");
    EXPECT_EQ(ItemsOpen("P"), Lines());
    EXPECT_EQ(Preselected("P"), "");
}

TEST_F(TreeView, SelectsTheFirstRootAtFirst)
{
    EXPECT_EQ(Preselected("S"), "House");
    EXPECT_EQ(Preselected("G"), "House");
    EXPECT_EQ(Preselected("W"), "House");
}

TEST_F(TreeView, SelectsTheSymbolThatTheStartTextBegins)
{
    EXPECT_EQ(Preselected("Stin"), "Tin");
    EXPECT_EQ(Preselected("Sti"), "Tile   red");
    EXPECT_EQ(Preselected("Sbr"), "Brick");
}

TEST_F(TreeView, SelectsTheGroupAboveASymbolThatTheStartTextNames)
{
    EXPECT_EQ(Preselected("Gbrick"), "Wall");
    EXPECT_EQ(Preselected("Groof"), "Roof");
}

TEST_F(TreeView, FindsNoStartInTheWizard)
{
    Pick("S", "Tin");
    EXPECT_EQ(Preselected("Wbrick"), "Tin");
}

TEST_F(TreeView, BringsTwoSiblingsAboveTheSelectionIntoView)
{
    Records records;
    for (int number = 100; number < 200; ++number)
        records.push_back(Entry(0, LYT_TREE_SYMBOL, std::to_string(number), std::to_string(number)));
    Serve('S', records);
    Pick("S", "150");
    Open("S150",
         [](const TreeWindow& tree)
         {
             EXPECT_EQ(tree.Selected(), "150");
             EXPECT_NE(tree.FirstVisible(), "100");
             EXPECT_LE(tree.FirstVisible(), "148");
             tree.Cancel();
         });
}

TEST_F(TreeView, OpensTheBranchesAboveTheSelection)
{
    Pick("S", "Tin");
    Open("Sbrick",
         [](const TreeWindow& tree)
         {
             EXPECT_EQ(tree.Selected(), "Brick");
             EXPECT_NE(tree.StateOf("Wall") & TVIS_EXPANDED, 0U);
             tree.Cancel();
         });
}

TEST_F(TreeView, NeedsNoClosedBranchToBeLoaded)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             tree.Expand("Roof");
             tree.Collapse("House");
             EXPECT_EQ(tree.Items(), houseShown);
             tree.Cancel();
         });
    EXPECT_EQ(Nexts('S'), 9);
}
