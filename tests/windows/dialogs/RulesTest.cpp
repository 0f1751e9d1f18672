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

// The end of a message gives the field its focus back, which is a command, too.
TEST_F(Rules, ThatFailSaySoOnceForEachCommandOfTheUser)
{
    description.values = "A = FILLEDBY, lytdata, LookUp, x, wrong\n";
    description.rules = "A/FILL = Key\n";
    description.output += "$OUTPUT, wrong\nGhost(1) = (\"%s\", Key)\n";
    Describe(description);
    // A field tells of a letter before it shows it, and after.
    On([](HWND /*dialog*/) { robot::TypeText("x"); });
    robot.AnswerMessage().AnswerMessage();
    On([](HWND dialog) { SendCommand(dialog); });
    robot.AnswerMessage();
    // What the field held before is no change.
    On([](HWND dialog) { robot::ReplaceText(Key(dialog), ""); });
    EXPECT_EQ(ShowAndPress(IDCANCEL), 0);
    EXPECT_EQ(robot.Messages(), Texts(3, "E245 'Ghost'"));
}
