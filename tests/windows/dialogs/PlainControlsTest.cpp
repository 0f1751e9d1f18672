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

TEST_F(PlainControls, OptionWordsHideOrDisable)
{
    const struct
    {
        const char* word;
        bool shown;
        bool enabled;
    } cases[] = {
        {"HIDDEN", false, true},   {"INVISIBLE", false, true}, {"DISPLAYONLY", true, false},
        {"INACTIVE", true, false}, {"hidden", true, true},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.word);
        description.values.clear();
        for (const char* name : {"Edit", "Static", "Frame", "Ok"})
            description.values += std::string(name) + " = " + c.word + "\n";
        Describe(description);
        On(
            [&](HWND dialog)
            {
                for (HWND control : {Edit(dialog), Static(dialog), Frame(dialog)})
                {
                    EXPECT_EQ(IsWindowVisible(control) != FALSE, c.shown);
                    EXPECT_EQ(IsWindowEnabled(control) != FALSE, c.enabled);
                }
                EXPECT_TRUE(IsWindowVisible(Ok(dialog)) && IsWindowEnabled(Ok(dialog)));
            });
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    }
}

TEST_F(PlainControls, TwoOptionWordsAddUp)
{
    description.values = "Edit = HIDDEN\nEdit = INACTIVE\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_FALSE(IsWindowVisible(Edit(dialog)) || IsWindowEnabled(Edit(dialog))); });
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

TEST_F(PlainControls, InactiveConditionFailsUnlessItIsHiddenOrDisplayOnly)
{
    const std::pair<const char*, bool> cases[] = {{"INACTIVE", false}, {"DISPLAYONLY", true}, {"HIDDEN", true}};
    for (const auto& [word, holds] : cases)
    {
        SCOPED_TRACE(word);
        description.values = std::string("Edit = ") + word + "\nEdit = INACTIVE\n";
        description.rules = "Static/VISIBLE = Edit\n";
        Describe(description);
        On([expected = holds](HWND dialog) { EXPECT_EQ(IsWindowVisible(Static(dialog)) != FALSE, expected); });
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    }
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

TEST_F(PlainControls, WithoutAValueReport200And201And247)
{
    const struct
    {
        const char* target;
        const char* messageOfSet;
    } cases[] = {{"Frame", "E200 ''"}, {"Ok", "E200 ''"}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.target);
        description.input = std::string("$INPUT, parent\nStart: (999, End = Key, ") + c.target + "\n";
        Describe(description);
        robot.AnswerMessage();
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
        EXPECT_EQ(robot.Messages().back(), c.messageOfSet);
    }

    description.input = Description().input;
    for (const char* source : {"Static", "Frame"})
    {
        description.output = std::string("$OUTPUT\n(\"x%s\", ") + source + ")\n";
        Describe(description);
        PressOn(IDOK);
        robot.AnswerMessage();
        EXPECT_EQ(Show("a"), 1);
        EXPECT_EQ(text, "x");
        EXPECT_EQ(robot.Messages().back(), "E201 ''");
    }

    description.output = Description().output;
    for (const char* name : {"Static", "Frame"})
    {
        description.rules = std::string(name) + "/CLEAR = Key\n";
        Describe(description);
        On([](HWND dialog) { PostMessageA(Key(dialog), WM_CHAR, 'x', 1); });
        robot.AnswerMessage();
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
        EXPECT_EQ(robot.Messages().back(), "E248 ''\nE247 '" + std::string(name) + "'");
    }
}

TEST_F(PlainControls, DefaultButtonGivesNoValueAndNoMessageToTheOutput)
{
    description.output = "$OUTPUT\n(\"%s-%s\", Key, Ok)\n";
    Describe(description);
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
    EXPECT_EQ(text, "a-Ok") << "its name is no name of its own, so the word stands for itself";
}

TEST_F(PlainControls, RuleThatNamesTheOkButtonChangesNothingAboutIt)
{
    description.rules = "Ok/ACTIVE = Key(x)\nCancel/VISIBLE = Key(x)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_TRUE(IsWindowEnabled(Ok(dialog)));
            EXPECT_TRUE(IsWindowVisible(Cancel(dialog)));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(PlainControls, DefaultButtonCountsAsNotActiveInACondition)
{
    description.rules = "Edit/ACTIVE = Ok\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_FALSE(IsWindowEnabled(Edit(dialog))); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(PlainControls, ButtonsWithoutTheirSectionReadNoValuePresent)
{
    WriteTexts("[TEXTS]\r\nTitle=The title\r\n");
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(robot::TextOf(Ok(dialog)), "no value present");
            EXPECT_EQ(robot::TextOf(Cancel(dialog)), "no value present");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(PlainControls, ButtonLabelsComeFromTheLanguageFile)
{
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(robot::TextOf(Ok(dialog)), "OK");
            EXPECT_EQ(robot::TextOf(Cancel(dialog)), "Cancel");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(PlainControls, EvaluationThatBeginsWithNullIgnoresTheRest)
{
    description.checks = "Edit(NULL,x) = Key(a): Refused\n";
    description.values = "Edit = x\n";
    Describe(description);
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2) << "the other control is not looked at";
    EXPECT_EQ(robot.Messages(), Texts{});

    description.values = "";
    description.output = "$OUTPUT\n(\"%s\", Key, Edit)\n";
    Describe(description);
    PressOn(IDOK);
    robot.AnswerMessage();
    EXPECT_EQ(ShowAndPress(IDCANCEL, "b"), 0);
}

TEST_F(PlainControls, ForbiddenCombinationIsRefusedAndMovesTheFocus)
{
    description.checks = "Edit(1,2) = Key(a,b): Refused\n";
    description.values = "Edit = 1\n";
    description.output = "$OUTPUT\n(\"%s\", Key, Edit)\n";
    Describe(description);
    PressOn(IDOK);
    robot.AnswerMessage();
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(GetFocus(), Edit(dialog));
            robot::ReplaceText(Edit(dialog), "3");
            robot::PressKey(VK_RETURN);
        });
    EXPECT_EQ(Show("a"), 2);
}

TEST_F(PlainControls, EvaluationOnAnUnknownControlIsRefusedWithoutMovingTheFocus)
{
    description.checks = "Edit(1) = Ghost(a): Refused\n";
    description.values = "Edit = 1\n";
    description.output = "$OUTPUT\n(\"%s\", Key, Edit)\n";
    Describe(description);
    On([](HWND dialog) { robot::Focus(Key(dialog)); });
    On([](HWND) { robot::PressKey(VK_RETURN); });
    robot.AnswerMessage();
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(GetFocus(), Key(dialog));
            robot::PressKey(VK_ESCAPE);
        });
    EXPECT_EQ(Show("a"), 0);
    EXPECT_EQ(robot.Messages(), Texts{"That is refused."});
}
