// What of the browser the transcripts do not show: sizes and places, pictures, focus and cursor, and the host around it.
#include "TreeFixture.h"

class Browser : public TreeTest
{
protected:
    Browser() { UseSource(); }
};

TEST_F(Browser, IsTheSmallestWindowWithoutConfiguration)
{
    Configure("TreeWidth=wide\n");
    const SIZE size = SizeShown("S");
    EXPECT_LE(size.cx, GetSystemMetrics(SM_CXMINTRACK));
    EXPECT_LE(size.cy, GetSystemMetrics(SM_CYMINTRACK));
}

TEST_F(Browser, PlacesTheControlsByTheClientArea)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             const RECT before = tree.PlaceOf(1000);
             const RECT okBefore = tree.PlaceOf(IDOK);
             for (const int width : {400, 401, 520})
             {
                 tree.Resize(width, 430);
                 RECT client = {};
                 GetClientRect(tree.Dialog(), &client);
                 const RECT items = tree.PlaceOf(1000);
                 EXPECT_EQ(items.left, before.left);
                 EXPECT_EQ(items.top, before.top);
                 EXPECT_EQ(items.right - items.left, client.right - 52);
                 EXPECT_EQ(items.bottom - items.top, client.bottom - 80);
                 const RECT ok = tree.PlaceOf(IDOK);
                 EXPECT_EQ(ok.left, client.right / 2 - 120);
                 EXPECT_EQ(ok.top, client.bottom - 40);
                 EXPECT_EQ(ok.right - ok.left, okBefore.right - okBefore.left);
                 EXPECT_EQ(ok.bottom - ok.top, okBefore.bottom - okBefore.top);
                 const RECT cancel = tree.PlaceOf(IDCANCEL);
                 EXPECT_EQ(cancel.left, client.right / 2 + 17);
                 EXPECT_EQ(cancel.top, client.bottom - 40);
             }
             tree.Cancel();
         });
}

TEST_F(Browser, PlacesTheControlsWhenItOpens)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             RECT client = {};
             GetClientRect(tree.Dialog(), &client);
             EXPECT_EQ(tree.PlaceOf(IDOK).left, client.right / 2 - 120);
             tree.Cancel();
         });
}

TEST_F(Browser, ControlsStandInTheirOrderWithTheFocusOnOk)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             EXPECT_EQ(GetDlgCtrlID(robot::ChildAt(tree.Dialog(), 0)), IDOK);
             EXPECT_EQ(GetDlgCtrlID(robot::ChildAt(tree.Dialog(), 1)), IDCANCEL);
             EXPECT_EQ(GetDlgCtrlID(robot::ChildAt(tree.Dialog(), 2)), 1000);
             EXPECT_EQ(GetFocus(), GetDlgItem(tree.Dialog(), IDOK));
             const auto style = static_cast<DWORD>(GetWindowLongA(tree.Tree(), GWL_STYLE));
             constexpr DWORD wanted =
                 TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | WS_TABSTOP | WS_VISIBLE;
             EXPECT_EQ(style & wanted, wanted);
             // The platform may turn a control's border into a sunken edge.
             const auto edges = static_cast<DWORD>(GetWindowLongA(tree.Tree(), GWL_EXSTYLE)) & WS_EX_CLIENTEDGE;
             EXPECT_NE((style & WS_BORDER) | edges, 0U);
             tree.Cancel();
         });
}

TEST_F(Browser, CursorOfTheHostIsBackWhenTheBrowserIsOpen)
{
    HCURSOR cross = LoadCursorA(nullptr, IDC_CROSS);
    SetCursor(cross);
    HCURSOR open = nullptr;
    Open("S",
         [&](const TreeWindow& tree)
         {
             open = GetCursor();
             tree.Cancel();
         });
    EXPECT_NE(open, LoadCursorA(nullptr, IDC_WAIT));
    EXPECT_EQ(GetCursor(), cross);
}

TEST_F(Browser, SecondNameIsTheSameFunction)
{
    using OpenTreeView = decltype(lytOpenTreeView);
    EXPECT_EQ(Get<OpenTreeView>("lytOpenTreeViewPara"), Get<OpenTreeView>("lytOpenTreeView"));
}

TEST_F(Browser, HasThreePicturesOfSixteenPixels)
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

TEST_F(Browser, BringsTwoSiblingsAboveTheSelectionIntoView)
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

TEST_F(Browser, DoubleClickOnAnEntryWithChildrenOnlyOpensIt)
{
    robot::Robot robot;
    bool open = false;
    const auto tree = [] { return TreeWindow(robot::ActiveDialog()); };
    robot.On("Catalogue", [&](HWND) { tree().DoubleClick("Roof"); })
        .When(
            "open", [&] { return (tree().StateOf("Roof") & TVIS_EXPANDED) != 0; },
            [&]
            {
                open = true;
                tree().Cancel();
            });
    GuardedBuffer buffer(255, "untouched");
    EXPECT_EQ(Get<decltype(lytOpenTreeView)>("lytOpenTreeView")("W", buffer.Data(), buffer.Size()), 0);
    EXPECT_TRUE(robot.Done()) << robot.Log();
    EXPECT_TRUE(open);
    EXPECT_EQ(buffer.Text(), "untouched");
}

TEST_F(Browser, DoubleClickWithoutASelectionGoesTheWayOfOk)
{
    const Answer answer =
        Open("S", {[](const TreeWindow& tree)
                   {
                       tree.SelectNothing();
                       NMHDR header = {tree.Tree(), 1000, static_cast<UINT>(NM_DBLCLK)};
                       PostMessageA(tree.Dialog(), WM_NULL, 0, 0);
                       SendMessageA(tree.Dialog(), WM_NOTIFY, 1000, reinterpret_cast<LPARAM>(&header));
                   },
                   [](const TreeWindow& tree) { tree.Cancel(); }});
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.messages, Lines({"Pick another."}));
}

TEST_F(Browser, LetsEveryBranchOpen)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             NMTREEVIEWA expanding = {};
             expanding.hdr = {tree.Tree(), 1000, static_cast<UINT>(TVN_ITEMEXPANDINGA)};
             EXPECT_EQ(SendMessageA(tree.Dialog(), WM_NOTIFY, 1000, reinterpret_cast<LPARAM>(&expanding)), 0);
             tree.Cancel();
         });
}

TEST_F(Browser, LeavesTheHostAsItWas)
{
    HWND host = CreateWindowExA(0, "Edit", "host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr,
                                nullptr, nullptr);
    SetActiveWindow(host);
    SetFocus(host);
    char before[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof before, before);
    HWND owner = nullptr;
    BOOL enabled = TRUE;
    Open("S",
         [&](const TreeWindow& tree)
         {
             owner = GetWindow(tree.Dialog(), GW_OWNER);
             enabled = IsWindowEnabled(host);
             tree.Pick("Tin");
         });
    char after[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof after, after);
    EXPECT_EQ(owner, host);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_EQ(GetFocus(), host);
    EXPECT_STREQ(before, after);
    DestroyWindow(host);
}
