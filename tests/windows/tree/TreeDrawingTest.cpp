// What the browser draws. Nothing is drawn on windows in memory.
#include "TreeFixture.h"

using TreeDrawing = TreeTest;

TEST_F(TreeDrawing, IsOnAgainWhenTheBrowserIsOpen)
{
    UseSource();
    Open("S",
         [](const TreeWindow& tree)
         {
             EXPECT_TRUE(IsWindowVisible(tree.Tree()));
             RECT update = {};
             UpdateWindow(tree.Tree());
             tree.Expand("Roof");
             EXPECT_TRUE(GetUpdateRect(tree.Tree(), &update, FALSE));
             tree.Cancel();
         });
}
