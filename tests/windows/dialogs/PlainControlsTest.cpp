// Static text, group box and the two default buttons, and what all controls share.
#include "PlainControlsFixture.h"

TEST_F(PlainControls, HaveTheStylesOfTheirKind)
{
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(StyleOf(Edit(dialog)), 0x50810080U);
            EXPECT_TRUE(GetWindowLongPtrA(Edit(dialog), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
            EXPECT_EQ(StyleOf(Static(dialog)), 0x50000000U);
            EXPECT_EQ(StyleOf(Frame(dialog)), 0x50000007U);
            EXPECT_EQ(StyleOf(Ok(dialog)), 0x50010001U);
            EXPECT_EQ(StyleOf(Cancel(dialog)), 0x50010000U);
            EXPECT_EQ(LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0)), IDOK);
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(PlainControls, OptionWordIsTakenWhateverItsKeyword)
{
    description.values = "Edit = PRESET, INACTIVE\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_FALSE(IsWindowEnabled(Edit(dialog)));
            EXPECT_EQ(robot::TextOf(Edit(dialog)), "");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(PlainControls, DisplayOnlyStartsDisabledAndARuleCanEnableIt)
{
    description.values = "Edit = DISPLAYONLY\n";
    description.rules = "Edit/ACTIVE = Key(x)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_FALSE(IsWindowEnabled(Edit(dialog)));
            robot::ReplaceText(Key(dialog), "x");
            EXPECT_TRUE(IsWindowEnabled(Edit(dialog)));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}

TEST_F(PlainControls, StaticTextTakesTheSizeOfItsCaptionAndKeepsIt)
{
    description.controls += "Text 10, 110, 5, 5, \"Long\", .Long\n";
    description.input = "$INPUT, parent\nStart: (999, End = Key, Static\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            HWND other = robot::ChildAt(dialog, 6);
            EXPECT_GT(SizeOf(other).cx, SizeOf(Static(dialog)).cx);
            EXPECT_EQ(SizeOf(other).cy, SizeOf(Static(dialog)).cy);
            const SIZE before = SizeOf(Static(dialog));
            SetWindowTextA(other, "");
            EXPECT_EQ(robot::TextOf(Static(dialog)), "a text that is longer than the caption");
            HDC context = GetDC(dialog);
            SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
            SIZE extent{};
            GetTextExtentPoint32A(context, "A label", 7, &extent);
            ReleaseDC(dialog, context);
            EXPECT_EQ(before.cx, extent.cx);
            EXPECT_EQ(before.cy, extent.cy);
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a text that is longer than the caption"), 2);
}

TEST_F(PlainControls, GroupBoxWithACaptionOfTwoQuotesShowsNoText)
{
    description.controls += "GroupBox 5, 5, 99, 99, \"Quotes\", .NoText\nText 10, 10, 99, 99, \"Quotes\", .Text\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(robot::TextOf(Frame(dialog)), "A label");
            EXPECT_EQ(robot::TextOf(robot::ChildAt(dialog, 6)), "");
            EXPECT_EQ(robot::TextOf(robot::ChildAt(dialog, 7)), "\"\"") << "other controls show them";
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(PlainControls, ButtonsTakeTheirTextsFromTheLanguageFileAndReadNoValuePresentWithoutThem)
{
    Describe(description);
    for (const auto& [ok, cancel] : {std::pair("OK", "Cancel"), std::pair("no value present", "no value present")})
    {
        On(
            [okText = ok, cancelText = cancel](HWND dialog)
            {
                EXPECT_EQ(robot::TextOf(Ok(dialog)), okText);
                EXPECT_EQ(robot::TextOf(Cancel(dialog)), cancelText);
            });
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
        WriteTexts("[TEXTS]\r\nTitle=The title\r\n");
    }
}
