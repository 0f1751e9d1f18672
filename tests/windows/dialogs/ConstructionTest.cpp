#include "DialogFixture.h"

#include <algorithm>

using Construction = DialogFixture;

TEST_F(Construction, ControlsStandInTheOrderOfTheLayout)
{
    Description description;
    description.controls = "Text 10, 10, 50, 12, \"Label\", .L\nTextBox 10, 30, 50, 15, .Key\n"
                           "GroupBox 5, 5, 200, 100, \"Label\", .G\n"
                           "CancelButton 90, 150, 60, 20, .Cancel\nOKButton 10, 150, 60, 20, .Ok\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            Texts classes;
            std::vector<int> identifiers;
            for (HWND child : robot::ChildrenOf(dialog))
            {
                classes.push_back(robot::ClassOf(child));
                identifiers.push_back(GetDlgCtrlID(child));
            }
            EXPECT_EQ(classes, (Texts{"Static", "Edit", "Button", "Button", "Button"}));
            EXPECT_EQ(identifiers, (std::vector<int>{0, 0, 0, IDCANCEL, IDOK}));
            robot::PressKey(VK_ESCAPE);
        });
    EXPECT_EQ(Show(), 0);
}

TEST_F(Construction, KeyIsScannedAndComesBackChangedOrNot)
{
    Describe({});
    for (const auto& [entered, answer] : {std::pair("A1", 2), std::pair("B2", 1)})
    {
        On(
            [input = entered](HWND dialog)
            {
                EXPECT_EQ(robot::TextOf(robot::ChildAt(dialog, 0)), "A1");
                EXPECT_EQ(GetFocus(), robot::ChildAt(dialog, 0));
                robot::ReplaceText(robot::ChildAt(dialog, 0), input);
                robot::PressKey(VK_RETURN);
            });
        EXPECT_EQ(Show("A1"), answer);
        EXPECT_EQ(text, entered);
    }
}

TEST_F(Construction, LabelEndsAfterItsApostropheAndIsMeasuredSo)
{
    Description description;
    description.controls += "Text 10, 60, 50, 12, \"Apostrophe\", .L\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            HWND label = robot::ChildAt(dialog, 3);
            EXPECT_EQ(robot::TextOf(label), "It'");
            HDC context = GetDC(dialog);
            SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
            SIZE extent{};
            GetTextExtentPoint32A(context, "It'", 3, &extent);
            ReleaseDC(dialog, context);
            RECT rect{};
            GetWindowRect(label, &rect);
            EXPECT_EQ(rect.right - rect.left, extent.cx);
            EXPECT_EQ(rect.bottom - rect.top, extent.cy);
            robot::PressKey(VK_ESCAPE);
        });
    EXPECT_EQ(Show(), 0);
}

TEST_F(Construction, DefinesSwitchStretchesOfTheDescription)
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

TEST_F(Construction, DialogStandsOverItsVisibleOwner)
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

TEST_F(Construction, ControlsTakeTheFontOfTheDialog)
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
