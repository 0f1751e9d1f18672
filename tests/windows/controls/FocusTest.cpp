// The keyboard works after whatever a description does to the control that has the focus.
#include "Form.h"

#include <gtest/gtest.h>

namespace
{

class Focus : public testing::Test
{
protected:
    void ExpectFocus(const std::string& name)
    {
        form.Then([this, name] { EXPECT_EQ(GetFocus(), form[name]) << name; });
    }

    Form form;
};

} // namespace

TEST_F(Focus, IsGivenBackToAControlThatWasDisabledForAMoment)
{
    form.main.layout = {"TextBox E", "TextBox C"};
    form.main.values = {"C=2"};
    form.main.rules = {"E/ACTIVE = C(1)", "E/ACTIVE = C(2)"};
    form.main.output = {"(\"%s|%s\", E, C)"};
    form.Then(
        [this]
        {
            robot::Focus(form["E"]);
            robot::TypeText("abc");
        });
    EXPECT_EQ(form.Ok().Open().text, "abc|2");
}

TEST_F(Focus, GoesToTheNextTabStopWhenAnActionDisablesItsOwnControl)
{
    form.main.layout = {"PushButton Go", "TextBox Next"};
    form.main.values = {"Go=ACTIVE,Go"};
    form.Then([this] { robot::Click(form["Go"]); });
    ExpectFocus("Next");
    form.Then([] { robot::PressKey(VK_ESCAPE); });
    EXPECT_EQ(form.Open().answer, 0);

    form.main.layout = {"ListBox List", "PushButton Go", "TextBox Next"};
    form.main.values = {"List=a,a", "List=DBLCLICK,Go", "Go=VISIBLE,List"};
    form.Then([this] { robot::DoubleClickAt(form["List"], 60, 5); });
    ExpectFocus("Go");
    form.Then([] { robot::PressKey(VK_ESCAPE); });
    EXPECT_EQ(form.Open().answer, 0);
}

// The dialog gives its first control the focus before it shows.
TEST_F(Focus, IsThereFromTheOpeningOn)
{
    form.main.layout = {"TextBox E"};
    form.main.rules = {"E/ACTIVE = E(1)", "E/ACTIVE = Nobody(zz)"};
    ExpectFocus("E");
    form.Then([] { robot::PressKey(VK_ESCAPE); });
    EXPECT_EQ(form.Open().answer, 0);
}

// Reading the list of the nested dialog moves the focus back into it while it ends.
TEST_F(Focus, ComesBackFromANestedDialogThatPullsItWhileItEnds)
{
    form.main.layout = {"PushButton Go", "TextBox Edit"};
    form.main.values = {"Go=DIALOG,Inner,Take,Send"};
    form.main.input = {"$INPUT, Take", InputTo("Edit").front()};
    form.main.output = {"(\"%s\", Edit)", "$OUTPUT, Send", "(\"x\")"};
    form.dialogs["Inner"] = {
        .layout = {"TextBox E", "CheckListBox K"}, .values = {"K=a,a"}, .rules = {"E/ACTIVE = K(a)"}};
    form.Then([this] { robot::Click(form["Go"]); });
    form.In("Inner", [] { robot::PressKey(VK_ESCAPE); });
    ExpectFocus("Go");
    form.Then([] { robot::PressKey(VK_ESCAPE); });
    EXPECT_EQ(form.Open().answer, 0);
}

// The rules set each other off at the opening, at each letter, and by each move of the focus.
TEST_F(Focus, OfRulesThatNeverComeToRestIsFound)
{
    static const struct
    {
        Texts layout;
        Texts values;
        Texts rules;
    } cases[] = {
        {{"TextBox E"}, {}, {"E/ACTIVE = E(zz)", "E/ACTIVE = "}},
        {{"TextBox E", "TextBox F"}, {}, {"F/ACTIVE = F(NULL)", "F/ACTIVE = E"}},
        {{"TextBox E", "ListBox L"},
         {"L=a,a", "L=b,b"},
         {"L/VISIBLE = L", "L/VISIBLE = L(a)", "L/VISIBLE = L", "L/VISIBLE = L(a)", "E/ACTIVE = E(zz)",
          "E/ACTIVE = L"}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.rules.front());
        form.main.layout = c.layout;
        form.main.values = c.values;
        form.main.rules = c.rules;
        form.main.hasButtons = false;
        form.Then(
            [this]
            {
                robot::Focus(form["E"]);
                robot::TypeText("a");
            });
        form.Then([] { robot::PressKey(VK_ESCAPE); });
        EXPECT_EQ(form.Open("#").answer, 0);
    }
}
