// The browser's window: texts, size, the places of its controls, and the host around it.
#include "TreeFixture.h"

class TreeSize : public TreeTest
{
protected:
    TreeSize() { UseSource(); }

    void ResizeAnd(int width, int height, const std::function<void(const TreeWindow&)>& end)
    {
        Open("Stin",
             [&](const TreeWindow& tree)
             {
                 tree.Resize(width, height);
                 end(tree);
             });
    }
};

TEST_F(TreeSize, ComesFromTheConfigurationAtFirst)
{
    const SIZE size = SizeShown("S");
    EXPECT_EQ(size.cx, 300);
    EXPECT_EQ(size.cy, 400);
}

TEST_F(TreeSize, IsTheSmallestWindowWithoutConfiguration)
{
    Configure("TreeWidth=wide\n");
    const SIZE size = SizeShown("S");
    EXPECT_LE(size.cx, GetSystemMetrics(SM_CXMINTRACK));
    EXPECT_LE(size.cy, GetSystemMetrics(SM_CYMINTRACK));
}

TEST_F(TreeSize, IsThatOfTheLastOkAndNotOfACancel)
{
    ResizeAnd(350, 360, [](const TreeWindow& tree) { tree.Confirm(); });
    EXPECT_EQ(SizeShown("S").cx, 350);
    EXPECT_EQ(SizeShown("G").cy, 360);
    ResizeAnd(450, 460, [](const TreeWindow& tree) { tree.Cancel(); });
    EXPECT_EQ(SizeShown("S").cx, 350);
    EXPECT_EQ(SizeShown("S").cy, 360);
}

TEST_F(TreeSize, IsSharedByBothCatalogues)
{
    Open("Pgravel",
         [](const TreeWindow& tree)
         {
             tree.Resize(350, 360);
             tree.Confirm();
         });
    EXPECT_EQ(SizeShown("S").cx, 350);
}

TEST_F(TreeSize, OutlivesRelease)
{
    ResizeAnd(350, 360, [](const TreeWindow& tree) { tree.Confirm(); });
    Get<decltype(FreeGlobalObject)>("FreeGlobalObject")();
    Serve('S', house);
    EXPECT_EQ(SizeShown("").cx, 350);
}

TEST_F(TreeSize, PlacesTheControlsByTheClientArea)
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

TEST_F(TreeSize, PlacesTheControlsWhenItOpens)
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

TEST_F(TreeSize, SurvivesAWindowTooSmallForItsControls)
{
    ResizeAnd(1, 1, [](const TreeWindow& tree) { tree.Confirm(); });
    EXPECT_EQ(ItemsShown("S"), houseShown);
}

TEST_F(TreeSize, TextsComeFromTheLanguageFile)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             EXPECT_EQ(robot::TextOf(tree.Dialog()), "Catalogue");
             EXPECT_EQ(robot::TextOf(GetDlgItem(tree.Dialog(), IDOK)), "Fine");
             EXPECT_EQ(robot::TextOf(GetDlgItem(tree.Dialog(), IDCANCEL)), "Stop");
             tree.Cancel();
         });
}

TEST_F(TreeSize, TextsThatAreMissingReadSo)
{
    folder.Write("dialogs/lang/English.nls", "[Other]\n");
    Open("S",
         [](const TreeWindow& tree)
         {
             EXPECT_EQ(robot::TextOf(tree.Dialog()), "no value present");
             EXPECT_EQ(robot::TextOf(GetDlgItem(tree.Dialog(), IDOK)), "no value present");
             tree.Cancel();
         });
}

TEST_F(TreeSize, ControlsStandInTheirOrderWithTheFocusOnOk)
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

TEST_F(TreeSize, CursorOfTheHostIsBackWhenTheBrowserIsOpen)
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
