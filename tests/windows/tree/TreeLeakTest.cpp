// Used again and again, the catalogue takes nothing with it, and leaves the host as it was.
#include "TreeFixture.h"

#include "support/Leaks.h"

class TreeUse : public TreeTest
{
protected:
    TreeUse() { UseSource(); }
};

TEST_F(TreeUse, OpeningAndConfirmingCostsNothingForGood)
{
    ExpectNoGrowth([&] { Pick("S", "Tin"); }, 20);
}

TEST_F(TreeUse, RefusingAndCancellingCostsNothingForGood)
{
    ExpectNoGrowth(
        [&] {
            Open("G",
                 {[](const TreeWindow& tree) { tree.Pick("House"); }, [](const TreeWindow& tree) { tree.Cancel(); }});
        },
        20);
}

TEST_F(TreeUse, ReleasingAndReadingAgainCostsNothingForGood)
{
    const std::string dialogs = folder.Path() + "\\dialogs";
    ExpectNoGrowth(
        [&]
        {
            Get<decltype(FreeGlobalObject)>("FreeGlobalObject")();
            Get<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("", dialogs.c_str(),
                                                                                folder.Path().c_str());
            SymbolFor("tin");
            ItemsShown("W");
            SymbolFor("tin");
            ItemsShown("P");
        },
        20);
}

TEST_F(TreeUse, LeavesTheHostAsItWas)
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
