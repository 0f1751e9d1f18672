#include "TestWindows.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

namespace
{

class TreeControl : public testing::Test
{
protected:
    void SetUp() override
    {
        INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TREEVIEW_CLASSES};
        ::InitCommonControlsEx(&classes);
        ASSERT_TRUE(tree.Create("SysTreeView32", "", TVS_HASBUTTONS, CRect(0, 0, 100, 100), &parent, 1000));
        root = Insert(TVI_ROOT);
        leaf = Insert(root);
    }

    HTREEITEM Insert(HTREEITEM under)
    {
        char text[] = "item";
        TVINSERTSTRUCTA item{};
        item.hParent = under;
        item.hInsertAfter = TVI_LAST;
        item.item.mask = TVIF_TEXT;
        item.item.pszText = text;
        return reinterpret_cast<HTREEITEM>(tree.SendMessage(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item)));
    }

    RecordingWindow parent;
    CTreeCtrl tree;
    HTREEITEM root = nullptr;
    HTREEITEM leaf = nullptr;
};

} // namespace

TEST_F(TreeControl, TellsLeavesFromBranches)
{
    EXPECT_TRUE(tree.ItemHasChildren(root));
    EXPECT_FALSE(tree.ItemHasChildren(leaf));
}

TEST_F(TreeControl, GivesTheStateOfAnItem)
{
    EXPECT_EQ(tree.GetItemState(root, TVIS_EXPANDED) & TVIS_EXPANDED, 0U);
    tree.SendMessage(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(root));
    EXPECT_NE(tree.GetItemState(root, TVIS_EXPANDED) & TVIS_EXPANDED, 0U);
}

TEST_F(TreeControl, AnItemThatDoesNotExistHasNoStateAndNoChildren)
{
    EXPECT_EQ(tree.GetItemState(nullptr, TVIS_EXPANDED), 0U);
    EXPECT_FALSE(tree.ItemHasChildren(nullptr));
}

TEST(ImageList, GoesWithItsObject)
{
    HIMAGELIST handle = nullptr;
    {
        CImageList images;
        EXPECT_FALSE(images.DeleteImageList());
        ASSERT_TRUE(images.Create(16, 16, 0, 0, 8));
        handle = images.GetSafeHandle();
        EXPECT_EQ(images.Add(::LoadIconW(nullptr, MAKEINTRESOURCEW(32512))), 0);
        EXPECT_EQ(images.Add(::LoadIconW(nullptr, MAKEINTRESOURCEW(32514))), 1);
        EXPECT_EQ(::ImageList_GetImageCount(handle), 2);
    }
    EXPECT_EQ(::ImageList_GetImageCount(handle), 0);
}
