// Many dialogs one after another take nothing with them.
#include "DialogFixture.h"

#include "support/Leaks.h"

namespace
{

class Leaks : public DialogFixture
{
};

} // namespace

TEST_F(Leaks, HundredDialogsInARow)
{
    Description description;
    description.controls += "Text 10, 60, 50, 12, \"Label\", .L\nGroupBox 5, 5, 99, 99, \"Label\", .G\n"
                            "PushButton 200, 10, 60, 20, \"Label\", .Go\nListBox 10, 100, 60, 40, .List\n"
                            "ComboBox 90, 100, 60, 40, .Combo\nCheckBox 10, 80, 50, 12, \"Label\", .Box\n"
                            "OptionGroup .Group\nOptionButton 200, 40, 60, 12, \"Label\", .One\n";
    description.rules = "L/VISIBLE = Key(x)\nCombo/ACTIVE = Key(NOTNULL)\n";
    description.checks = "Key = NULL: Refused\n";
    Describe(description);
    ExpectNoGrowth(
        [&]
        {
            // A robot a round: its log would grow.
            robot::Robot user;
            user.On("The title", [](HWND) { robot::PressKey(VK_RETURN); });
            EXPECT_EQ(Show("a"), 2);
        });
}

TEST_F(Leaks, HundredDialogsThatFail)
{
    Description description;
    description.output = "$OUTPUT\n)x\n";
    Describe(description);
    ExpectNoGrowth(
        [&]
        {
            robot::Robot user;
            user.AnswerMessage();
            EXPECT_EQ(Show("a"), 0);
        });
}
