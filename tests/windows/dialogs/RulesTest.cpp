// When the rules of a live dialog fire, and in what order.
#include "DialogFixture.h"

namespace
{

class Rules : public DialogFixture
{
protected:
    Rules()
    {
        description.controls +=
            "TextBox 10, 40, 150, 15, .A\nTextBox 10, 60, 150, 15, .B\nTextBox 10, 80, 150, 15, .C\n";
    }
    static HWND Key(HWND dialog) { return robot::ChildAt(dialog, 0); }
    static HWND A(HWND dialog) { return robot::ChildAt(dialog, 3); }
    static HWND B(HWND dialog) { return robot::ChildAt(dialog, 4); }
    static HWND C(HWND dialog) { return robot::ChildAt(dialog, 5); }
    static bool IsOn(HWND control) { return IsWindowEnabled(control) != FALSE; }
    static bool IsShown(HWND control) { return IsWindowVisible(control) != FALSE; }

    Description description;
};

} // namespace

TEST_F(Rules, FireOnceAtTheEndOfConstruction)
{
    description.rules = "A/ACTIVE = Key(x)\nB/VISIBLE = Key(x)\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_TRUE(IsOn(A(dialog)) && IsShown(B(dialog))); });
    EXPECT_EQ(ShowAndPress(IDOK, "x"), 2);
    On([](HWND dialog) { EXPECT_TRUE(!IsOn(A(dialog)) && !IsShown(B(dialog))); });
    EXPECT_EQ(ShowAndPress(IDOK, "y"), 2);
}

TEST_F(Rules, FireAtEveryCommand)
{
    description.rules = "A/ACTIVE = Key(x)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_FALSE(IsOn(A(dialog)));
            robot::TypeText("x");
        });
    On(
        [](HWND dialog)
        {
            EXPECT_TRUE(IsOn(A(dialog)));
            EnableWindow(A(dialog), FALSE);
            SendCommand(dialog);
            EXPECT_TRUE(IsOn(A(dialog))) << "a state word is applied in every run";
        });
    EXPECT_EQ(ShowAndPress(IDOK, ""), 1);
}

TEST_F(Rules, AnyOtherStateWordShowsAndHides)
{
    description.rules = "A/NONSENSE = Key(x)\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_TRUE(!IsShown(A(dialog)) && IsOn(A(dialog))); });
    EXPECT_EQ(ShowAndPress(IDOK, "y"), 2);
}

TEST_F(Rules, OnePassInFileOrderAndNoSecond)
{
    // The rule on C looks at B, which the rule below it switches.
    description.rules = "C/VISIBLE = B\nB/ACTIVE = A\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EnableWindow(A(dialog), FALSE);
            SendCommand(dialog);
            EXPECT_FALSE(IsOn(B(dialog)));
            EXPECT_TRUE(IsShown(C(dialog))) << "the change waits for the next command";
            SendCommand(dialog);
            EXPECT_FALSE(IsShown(C(dialog)));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, LaterRuleSeesWhatAnEarlierOneDid)
{
    description.rules = "B/ACTIVE = A\nC/VISIBLE = B\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EnableWindow(A(dialog), FALSE);
            SendCommand(dialog);
            EXPECT_FALSE(IsShown(C(dialog)));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, StateRuleWithoutConditionsIsSwitchedOnInEveryRun)
{
    description.values = "A = INACTIVE\n";
    description.rules = "A/ACTIVE =\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_TRUE(IsOn(A(dialog)));
            EnableWindow(A(dialog), FALSE);
            SendCommand(dialog);
            EXPECT_TRUE(IsOn(A(dialog)));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, ChangeClearsWhatItsRuleNames)
{
    description.values = "A = kept\nB = lost\n";
    description.rules = "B/CLEAR = Key\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            SendCommand(dialog);
            EXPECT_EQ(robot::TextOf(B(dialog)), "lost") << "nothing has changed yet";
            robot::ReplaceText(Key(dialog), "new");
            EXPECT_EQ(robot::TextOf(A(dialog)), "kept");
            EXPECT_EQ(robot::TextOf(B(dialog)), "");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}

TEST_F(Rules, ControlNamedInTwoRulesHasChangedForBoth)
{
    description.values = "A = lost\nB = lost\n";
    description.rules = "A/CLEAR = Key\nB/CLEAR = Key\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::ReplaceText(Key(dialog), "new");
            EXPECT_EQ(robot::TextOf(A(dialog)) + robot::TextOf(B(dialog)), "");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}

TEST_F(Rules, NotificationsOfConstructionRunNoRules)
{
    // The default of A and the scanned key both tell the dialog of a change; B stands already, and keeps its text.
    description.controls = "TextBox 10, 60, 150, 15, .B\nTextBox 10, 40, 150, 15, .A\n" + Description().controls;
    description.values = "A = default\nB = kept\n";
    description.rules = "B/CLEAR = A, Key\nB/CLEAR = Key\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(robot::TextOf(robot::ChildAt(dialog, 1)), "default");
            EXPECT_EQ(robot::TextOf(robot::ChildAt(dialog, 0)), "kept");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, FillRuleWithAnUnknownFirstConditionNeverFires)
{
    description.values = "A = FILLEDBY, lytdata, LookUp, x, Lookup\n";
    description.rules = "A/FILL = Ghost, Key\n";
    description.output += "$OUTPUT, Lookup\n(\"fruit/%s\", Key)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::ReplaceText(Key(dialog), "Apple");
            EXPECT_EQ(robot::TextOf(A(dialog)), "");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}

TEST_F(Rules, FieldThatFillsItselfComesToAnEnd)
{
    description.values = "Key = FILLEDBY, lytdata, LookUp\n";
    description.rules = "Key/FILL = Key\n";
    Describe(description);
    On([](HWND dialog) { robot::ReplaceText(Key(dialog), "Apple"); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}

TEST_F(Rules, ListsWithoutASelectionDoNotPassTheFocusForEver)
{
    description.controls += "ListBox 10, 100, 60, 40, .One\nListBox 90, 100, 60, 40, .Two\n";
    description.rules = "A/ACTIVE = One(1)\nB/ACTIVE = Two(1)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            SendCommand(dialog);
            EXPECT_EQ(robot::ClassOf(GetFocus()), "ListBox");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, DisablingTheControlWithTheFocusGivesItToTheNextTabStop)
{
    // B, which stands next, goes too.
    description.rules = "B/ACTIVE = A(NULL)\nA/ACTIVE = A(NULL)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::Focus(A(dialog));
            robot::TypeText("x");
        });
    On(
        [](HWND dialog)
        {
            EXPECT_FALSE(IsOn(A(dialog)) || IsOn(B(dialog)));
            EXPECT_EQ(GetFocus(), C(dialog));
            robot::TypeText("y");
        });
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(robot::TextOf(C(dialog)), "y");
            robot::PressKey(VK_ESCAPE);
        });
    EXPECT_EQ(Show("a"), 0);
}

TEST_F(Rules, DisablingAComboBoxWhoseFieldHasTheFocusMovesItOn)
{
    description.controls += "ComboBox 10, 100, 60, 40, .Combo\nTextBox 10, 120, 150, 15, .After\n";
    description.rules = "Combo/ACTIVE = Combo(NULL)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::Focus(robot::ChildAt(dialog, 6));
            ASSERT_EQ(robot::ClassOf(GetFocus()), "Edit");
            robot::TypeText("x");
        });
    On(
        [](HWND dialog)
        {
            EXPECT_FALSE(IsOn(robot::ChildAt(dialog, 6)));
            EXPECT_EQ(GetFocus(), robot::ChildAt(dialog, 7));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, OnesThatRunWithoutTheFocusDoNotTakeIt)
{
    description.rules = "A/ACTIVE = Key(x)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            SetFocus(nullptr);
            SendCommand(dialog);
            EXPECT_EQ(GetFocus(), nullptr);
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, CommandsFromTheWindowsEndOnRunNothing)
{
    description.rules = "B/ACTIVE = Key(x)\n";
    Describe(description);
    static WNDPROC original = nullptr;
    static bool enabledByDyingDialog = true;
    const WNDPROC onDestroy = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT
    {
        if (message == WM_DESTROY)
        {
            HWND dialog = GetParent(window);
            EnableWindow(B(dialog), FALSE);
            SendCommand(dialog);
            enabledByDyingDialog = IsOn(B(dialog));
        }
        return CallWindowProcA(original, window, message, wParam, lParam);
    };
    On(
        [&](HWND dialog)
        {
            original = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrA(A(dialog), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(onDestroy)));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "x"), 2);
    EXPECT_FALSE(enabledByDyingDialog);
}

TEST_F(Rules, ChainGoesOnPastTheDeepestRunInEitherOrder)
{
    constexpr int fields = 120;
    std::string chain;
    for (int index = 0; index < fields; ++index)
    {
        const std::string name = "F" + std::to_string(index);
        description.controls += "TextBox 10, 100, 20, 10, ." + name + "\n";
        description.values += name + " = text\n";
        const std::string rule = name + "/CLEAR = " + (index > 0 ? "F" + std::to_string(index - 1) : "A") + "\n";
        description.rules = rule + description.rules;
        chain += rule;
    }
    for (const std::string& rules : {description.rules, chain})
    {
        description.rules = rules;
        Describe(description);
        On(
            [](HWND dialog)
            {
                robot::ReplaceText(A(dialog), "changed");
                for (size_t index = 0; index < fields; ++index)
                    EXPECT_EQ(robot::TextOf(robot::ChildAt(dialog, 6 + index)), "") << index;
            });
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    }
}

TEST_F(Rules, RunBegunByAReadHasRunsInsideIt)
{
    // The button composes the choice of a list that has none, which pulls the focus there: the key field loses it, and
    // the rules run. That B is reached, whose rule stands first, takes a run inside this one.
    description.controls += "PushButton 200, 10, 60, 20, \"Label\", .Go\n"
                            "ListBox 10, 100, 60, 40, .None\nListBox 90, 100, 60, 40, .Choice\n";
    description.values =
        "A = text\nB = text\nChoice = Label, one\nChoice = Long, two\nGo = DIALOG, Nested, Take, Send\n";
    description.rules = "B/CLEAR = A\nA/CLEAR = Choice\n";
    description.output += "$OUTPUT, Send\n(\"%s\", None)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::Focus(Key(dialog));
            // Sends no command, so the rules do not know yet.
            SendMessageA(robot::ChildAt(dialog, 8), LB_SETCURSEL, 1, 0);
            EXPECT_EQ(robot::TextOf(A(dialog)) + robot::TextOf(B(dialog)), "texttext");
            HWND button = robot::ChildAt(dialog, 6);
            SendMessageA(button, BM_SETSTATE, TRUE, 0);
            SendMessageA(button, BM_SETSTATE, FALSE, 0);
            EXPECT_EQ(robot::TextOf(A(dialog)) + robot::TextOf(B(dialog)), "");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Rules, OutputTakes25ItemsAndRefuses26)
{
    std::string items = "Key";
    for (int item = 2; item <= 25; ++item)
        items += ", i" + std::to_string(item);
    description.output = "$OUTPUT\n(\"%s\", " + items + ")\n";
    Describe(description);
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);

    description.output = "$OUTPUT\n(\"%s\", " + items + ", i26)\n";
    Describe(description);
    PressOn(IDOK);
    robot.AnswerMessage();
    EXPECT_EQ(ShowAndPress(IDCANCEL, "a"), 0);
}

TEST_F(Rules, OutputRuleThatNamesAButtonShows201EachTime)
{
    description.controls += "PushButton 200, 10, 60, 20, \"Label\", .Go\n";
    description.output = "$OUTPUT\n(\"%s\", Go)\n";
    Describe(description);
    for (int round = 0; round < 2; ++round)
    {
        PressOn(IDOK);
        robot.AnswerMessage();
        EXPECT_EQ(Show("a"), 1);
        EXPECT_EQ(text, "as it was") << "an empty result leaves the buffer";
    }
    EXPECT_EQ(robot.Messages(), (Texts{"E201 ''", "E201 ''"}));
}
