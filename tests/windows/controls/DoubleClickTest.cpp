#include "Form.h"

#include <gtest/gtest.h>

namespace
{

// Both kinds of list answer a double click.
class DoubleClick : public testing::TestWithParam<const char*>
{
protected:
    DoubleClick()
    {
        form.main.layout = {std::string(GetParam()) + " List", "PushButton Go", "TextBox Edit"};
        form.main.values = {"List=ONE,one", "List=TWO,two", "Go=VISIBLE,Edit"};
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}};
    }

    void Target(const std::string& name) { form.main.values.push_back("List=DBLCLICK," + name); }
    // On the text of the first item.
    void Act()
    {
        form.Then([this] { robot::DoubleClickAt(form["List"], 60, 5); });
    }

    Form form;
};

} // namespace

TEST_P(DoubleClick, OkClosesTheDialog)
{
    Target("OK");
    form.main.output = {"(\"%s\", List)"};
    Act();
    EXPECT_EQ(form.Open().text, "one");
}

TEST_P(DoubleClick, OkThatIsRefusedLeavesTheDialogOpen)
{
    Target("OK");
    form.main.evaluation = {"Edit=NULL:REFUSED"};
    form.main.output = {"(\"%s\", Edit)"};
    Act();
    form.Message();
    EXPECT_EQ(form.Cancel().Open().messages, (Texts{"refused"}));
}

TEST_P(DoubleClick, AButtonIsClickedOnce)
{
    Target("Go");
    Act();
    form.Then([&] { EXPECT_FALSE(IsWindowVisible(form["Edit"])); });
    form.Ok().Open();
}

TEST_P(DoubleClick, AnUnknownNameDoesNothing)
{
    Target("Nobody");
    Act();
    form.Then([&] { EXPECT_TRUE(IsWindowVisible(form["Edit"])); });
    EXPECT_EQ(form.Ok().Open().messages, Texts{});
}

TEST_P(DoubleClick, AControlThatIsNoButtonHasNothingToDoAndTheRulesRun)
{
    form.main.layout.insert(form.main.layout.end(), {"ListBox Source", "CheckBox Box"});
    form.main.values.insert(form.main.values.end(), {"Source=ONE,one", "Edit=kept"});
    form.main.rules = {"Edit/CLEAR=Source"};
    for (const char* target : {"Edit", "Source", "Box", "List", "Ok"})
    {
        SCOPED_TRACE(target);
        Target(target);
        form.Then([&] { SendMessageA(form["Source"], LB_SETCURSEL, static_cast<WPARAM>(-1), 0); });
        Act();
        form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); });
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_P(DoubleClick, WithoutAStatementOnlySelects)
{
    Act();
    form.Then(
        [&]
        {
            EXPECT_TRUE(IsWindowVisible(form["Edit"]));
            EXPECT_EQ(robot::SelectedItemOf(form["List"]), 0);
        });
    form.Ok().Open();
}

TEST_P(DoubleClick, AFailureOfTheButtonIsToldAndTheDialogLivesOn)
{
    form.main.values.back() = "Go=ACTION,no-such-library,a,b,c";
    Target("Go");
    Act();
    form.Message();
    EXPECT_EQ(form.Ok().Open().messages, (Texts{"238\n233 'no-such-library'"}));
}

INSTANTIATE_TEST_SUITE_P(Lists, DoubleClick, testing::Values("ListBox", "CheckListBox"));

TEST(DefaultButtonRule, ATargetThatIsNoButtonRunsTheRulesOnly)
{
    Form form;
    form.main.layout = {"TextBox Edit", "ListBox List", "TextBox Other"};
    form.main.values = {"List=a,a", "Other=kept"};
    form.main.rules = {"List/DEFBUTTON=Edit", "Other/CLEAR=List"};
    form.Then(
        [&]
        {
            SendMessageA(form["List"], LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            robot::Focus(form["Edit"]);
            robot::PressKey(VK_RETURN);
        });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Other"]), ""); });
    EXPECT_EQ(form.Ok().Open().messages, Texts{});
}
