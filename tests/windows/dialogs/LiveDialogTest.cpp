#include "DialogFixture.h"

using LiveDialog = DialogFixture;

TEST_F(LiveDialog, DefinesSwitchStretchesOfTheDescription)
{
    Description description;
    description.controls +=
        "<EXTRA\nTextBox 10, 40, 50, 15, .Extra\n>\n<!EXTRA\nText 10, 40, 50, 15, \"Label\", .Plain\n>\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_EQ(robot::ClassOf(robot::ChildAt(dialog, 3)), "Static"); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);

    setDefine("OTHER");
    setDefine("EXTRA");
    for (int round = 0; round < 2; ++round)
    {
        On([](HWND dialog) { EXPECT_EQ(robot::ClassOf(robot::ChildAt(dialog, 3)), "Edit"); });
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 2) << "a define is kept from call to call";
    }

    initialise("doc.rtf", folder.Path().c_str(), folder.Path().c_str());
    On([](HWND dialog) { EXPECT_EQ(robot::ClassOf(robot::ChildAt(dialog, 3)), "Static"); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(LiveDialog, DialogStandsOverItsVisibleOwner)
{
    Describe({});
    HWND owner = CreateWindowExA(0, "Static", "host", WS_POPUP | WS_VISIBLE, 300, 200, 400, 300, nullptr, nullptr,
                                 nullptr, nullptr);
    SetActiveWindow(owner);
    On(
        [&](HWND dialog)
        {
            EXPECT_EQ(GetWindow(dialog, GW_OWNER), owner);
            RECT rect{};
            GetWindowRect(dialog, &rect);
            EXPECT_NEAR((rect.left + rect.right) / 2.0, 500, 1);
            EXPECT_NEAR((rect.top + rect.bottom) / 2.0, 350, 1);
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    DestroyWindow(owner);
}

TEST_F(LiveDialog, ControlsTakeTheFontOfTheDialog)
{
    Description description;
    description.controls += "Text 10, 60, 50, 12, \"Label\", .L\nGroupBox 5, 5, 99, 99, \"Label\", .G\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            const LRESULT font = SendMessageA(dialog, WM_GETFONT, 0, 0);
            EXPECT_NE(font, 0);
            for (HWND child : robot::ChildrenOf(dialog))
                EXPECT_EQ(SendMessageA(child, WM_GETFONT, 0, 0), font);
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(LiveDialog, RunsNoRulesForCommandsWhileItsWindowsEnd)
{
    Description description;
    description.controls += "TextBox 10, 40, 150, 15, .Ending\nTextBox 10, 60, 150, 15, .Ruled\n";
    description.rules = "Ruled/ACTIVE = Key(x)\n";
    Describe(description);
    static WNDPROC original = nullptr;
    static bool isEnabled = true;
    const WNDPROC onDestroy = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT
    {
        if (message == WM_DESTROY)
        {
            HWND ruled = robot::ChildAt(GetParent(window), 4);
            EnableWindow(ruled, FALSE);
            SendCommand(GetParent(window));
            isEnabled = IsWindowEnabled(ruled) != FALSE;
        }
        return CallWindowProcA(original, window, message, wParam, lParam);
    };
    On(
        [&](HWND dialog)
        {
            original = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrA(robot::ChildAt(dialog, 3), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(onDestroy)));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "x"), 2);
    EXPECT_FALSE(isEnabled);
}
