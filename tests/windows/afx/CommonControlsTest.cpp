#include "TestWindows.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

TEST(TreeControl, GivesNoStateAndNoChildrenOfAnItemThatDoesNotExist)
{
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TREEVIEW_CLASSES};
    ::InitCommonControlsEx(&classes);
    RecordingWindow parent;
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create("SysTreeView32", "", TVS_HASBUTTONS, CRect(0, 0, 100, 100), &parent, 1000));
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
