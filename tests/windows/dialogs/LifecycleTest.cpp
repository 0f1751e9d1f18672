// How a dialog ends: Return, OK, Cancel, and what becomes of errors while it stands.
#include "DialogFixture.h"

namespace
{

class Lifecycle : public DialogFixture
{
protected:
    // Adds a button that copies nothing and opens nothing: its action shows as a rule run.
    static Description WithButton()
    {
        Description description;
        description.controls += "TextBox 10, 40, 150, 15, .Other\n"
                                "PushButton 200, 10, 60, 20, \"Label\", .Go\n"
                                "Text 10, 70, 50, 12, \"Label\", .Shown\n";
        description.values = "Go = VISIBLE, Shown\n";
        description.rules = "Go/DEFBUTTON = Other, Key\n";
        return description;
    }
    static HWND Key(HWND dialog) { return robot::ChildAt(dialog, 0); }
    static HWND Shown(HWND dialog) { return robot::ChildAt(dialog, 5); }
};

} // namespace

TEST_F(Lifecycle, ReturnInAFieldWithADefaultButtonRunsThatButtonAndTheDialogStays)
{
    Describe(WithButton());
    On(
        [](HWND dialog)
        {
            EXPECT_TRUE(IsWindowVisible(Shown(dialog)));
            EXPECT_EQ(GetFocus(), Key(dialog));
            robot::PressKey(VK_RETURN);
        });
    On(
        [](HWND dialog)
        {
            EXPECT_FALSE(IsWindowVisible(Shown(dialog))) << "the button's action";
            robot::PressKey(VK_ESCAPE);
        });
    EXPECT_EQ(Show("a"), 0);
}

TEST_F(Lifecycle, DefaultButtonOfAnUnknownControlKeepsTheDialogOpen)
{
    Description description = WithButton();
    // A rule on an unknown control is not stored, so its conditions go to the next one.
    description.rules = "Ghost/DEFBUTTON = Key\nOther/DEFBUTTON = Other\n";
    Describe(description);
    On([](HWND) { robot::PressKey(VK_RETURN); });
    PressOn(IDCANCEL);
    EXPECT_EQ(Show("a"), 0);
}

TEST_F(Lifecycle, OkButtonHasNoNameUnlessARuleNamesTheEmptyOne)
{
    Description description = WithButton();
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::Focus(GetDlgItem(dialog, IDOK));
            robot::PressKey(VK_RETURN);
        });
    EXPECT_EQ(Show("a"), 2) << "no rule names the button, so Return is OK";

    description.rules = "Go/DEFBUTTON = \"\"\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::Focus(GetDlgItem(dialog, IDOK));
            robot::PressKey(VK_RETURN);
        });
    On(
        [](HWND dialog)
        {
            EXPECT_FALSE(IsWindowVisible(Shown(dialog)));
            robot::PressKey(VK_ESCAPE);
        });
    EXPECT_EQ(Show("a"), 0);
}

TEST_F(Lifecycle, FocusInsideAComboBoxNamesNoControl)
{
    Description description = WithButton();
    description.controls += "ComboBox 10, 100, 100, 60, .Choice\n";
    description.rules = "Go/DEFBUTTON = Choice\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::Focus(robot::ChildOfClass(dialog, "ComboBox"));
            EXPECT_EQ(robot::ClassOf(GetFocus()), "Edit");
            robot::PressKey(VK_RETURN);
        });
    EXPECT_EQ(Show("a"), 2);
}

TEST_F(Lifecycle, EscapeAndTheFrameCancel)
{
    Describe({});
    On([](HWND) { robot::PressKey(VK_ESCAPE); });
    EXPECT_EQ(Show("a"), 0);
    EXPECT_EQ(text, "as it was");
    On([](HWND dialog) { PostMessageA(dialog, WM_CLOSE, 0, 0); });
    EXPECT_EQ(Show("a"), 0);
    EXPECT_EQ(text, "as it was");
}

TEST_F(Lifecycle, DialogWithoutButtonsEndsByKeys)
{
    Description description;
    description.controls = "TextBox 10, 10, 150, 15, .Key\n";
    Describe(description);
    On([](HWND) { robot::PressKey(VK_RETURN); });
    EXPECT_EQ(Show("a"), 2);
    On([](HWND) { robot::PressKey(VK_ESCAPE); });
    EXPECT_EQ(Show("a"), 0);
}

TEST_F(Lifecycle, OkWithoutAnOutputGroupOfTheDialogDoesNothing)
{
    Description description;
    description.output = "$OUTPUT\n";
    Describe(description);
    PressOn(IDOK);
    PressOn(IDCANCEL);
    EXPECT_EQ(Show("a"), 0);
    EXPECT_EQ(robot.Messages(), Texts{});
}

TEST_F(Lifecycle, OkWithoutAnApplicableRuleDoesNothing)
{
    Description description;
    description.output = "$OUTPUT\nKey(x) = (\"%s\", Key)\n";
    Describe(description);
    PressOn(IDOK);
    On(
        [](HWND dialog)
        {
            robot::ReplaceText(Key(dialog), "x");
            robot::PressKey(VK_RETURN);
        });
    EXPECT_EQ(Show("a"), 1);
    EXPECT_EQ(text, "x");
    EXPECT_EQ(robot.Messages(), Texts{});
}

TEST_F(Lifecycle, RefusingEvaluationShowsItsMessageMovesTheFocusAndStays)
{
    Description description = WithButton();
    description.rules = "";
    description.checks = "Key = NULL: Refused\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::Focus(robot::ChildAt(dialog, 3));
            robot::Press(GetDlgItem(dialog, IDOK));
        });
    robot.AnswerMessage();
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(GetFocus(), Key(dialog));
            robot::ReplaceText(Key(dialog), "b");
            robot::PressKey(VK_RETURN);
        });
    EXPECT_EQ(Show(""), 1);
    EXPECT_EQ(text, "b");
    EXPECT_EQ(robot.Messages(), Texts{"That is refused."});
}

TEST_F(Lifecycle, FailureOfOkIs246BelowTheFirstTextAndTheDialogStays)
{
    Description description;
    description.output = "$OUTPUT\nGhost(1) = (\"%s\", Key)\n";
    Describe(description);
    PressOn(IDOK);
    robot.AnswerMessage();
    PressOn(IDCANCEL);
    EXPECT_EQ(Show("a"), 0);
    EXPECT_EQ(text, "as it was");
    EXPECT_EQ(robot.Messages(), Texts{"E245 'Ghost'\nE246 ''"});
}

TEST_F(Lifecycle, MessagesCarryTheLibrarysTitleAndBelongToTheDialog)
{
    Description description;
    description.checks = "Key = NULL: Refused\n";
    Describe(description);
    HWND window = nullptr;
    On(
        [&](HWND dialog)
        {
            window = dialog;
            robot::Press(GetDlgItem(dialog, IDOK));
        });
    robot.On("lyt64",
             [&](HWND box)
             {
                 EXPECT_EQ(robot::MessageTextOf(box), "That is refused.");
                 EXPECT_EQ(GetWindow(box, GW_OWNER), window);
                 robot::Press(GetDlgItem(box, IDOK));
             });
    PressOn(IDCANCEL);
    EXPECT_EQ(Show(""), 0);
}

TEST_F(Lifecycle, NestedDialogThatFailsWhileCreatingItsControlsSilencesTheOuterRules)
{
    Description outer;
    outer.controls += "PushButton 200, 10, 60, 20, \"Label\", .Go\nTextBox 10, 40, 150, 15, .Other\n";
    outer.values = "Go = DIALOG, inner, parent, parent\n";
    outer.rules = "Other/ACTIVE = Key(x)\n";
    Describe(outer);
    Description inner;
    inner.controls += "CheckBox 10, 60, 50, 12, \"Label\", .Box\n";
    inner.values = "Box = ON, yes\nBox = OFF, no\nBox = maybe\n";
    Describe(inner, "inner");

    const auto type = [](HWND dialog, const char* value)
    {
        robot::ReplaceText(Key(dialog), value);
        return IsWindowEnabled(robot::ChildAt(dialog, 4)) != FALSE;
    };
    On(
        [&](HWND dialog)
        {
            EXPECT_TRUE(type(dialog, "x"));
            robot::Click(robot::ChildAt(dialog, 3));
        });
    robot.AnswerMessage();
    On(
        [&](HWND dialog)
        {
            EXPECT_TRUE(type(dialog, "y")) << "no rules run any more";
            Description good;
            good.begin = "Begin Dialog Box 300, 200, \"Label\", .Main\n";
            Describe(good, "inner");
            robot::Click(robot::ChildAt(dialog, 3));
        });
    robot.On("A label", [](HWND) { robot::PressKey(VK_ESCAPE); });
    On(
        [&](HWND dialog)
        {
            EXPECT_FALSE(type(dialog, "y")) << "a construction that ended well has given the rules back";
            robot::PressKey(VK_ESCAPE);
        });
    EXPECT_EQ(Show("a"), 0);
    ASSERT_EQ(robot.Messages().size(), 1U);
    EXPECT_EQ(robot.Messages()[0].substr(0, 3), "238");
}
