// A form of every type word, as a user goes through it.
#include "WholeForm.h"

#include "support/Leaks.h"

TEST_F(WholeForm, TabGoesThroughItInTheOrderOfTheLayout)
{
    const Texts order = {"Author", "Final",   "Signed", "Items", "Add",    "Delete", "Up",   "Down",
                         "Marks",  "Earlier", "Later",  "Place", "Colour", "Fill",   "Hide", "Lock",
                         "More",   "Check",   "Remark", "1",     "2",      "Title"};
    form.Then([&] { robot::Focus(form["Title"]); });
    for (const std::string& name : order)
    {
        form.Then([&] { robot::PressKey(VK_TAB); });
        form.Then([this, name] { EXPECT_EQ(FocusName(), name); });
    }
    form.Ok().Open();
}

TEST_F(WholeForm, ArrowsMoveTheMarkWithinAGroupOfOptions)
{
    form.Then([&] { robot::Focus(form["Final"]); });
    form.Then([&] { robot::PressKey(VK_DOWN); });
    form.Then([&] { EXPECT_EQ(FocusName(), "Copy"); });
    form.Then([&] { robot::PressKey(VK_UP); });
    form.Then([&] { robot::PressKey(VK_UP); });
    form.Then([&] { EXPECT_EQ(FocusName(), "Draft"); });
    form.main.output.front() = "(\"%s\", Kind)";
    EXPECT_EQ(form.Ok().Open().text, "draft");
}

TEST_F(WholeForm, ArrowsSelectInListsAndBoxes)
{
    form.Then([&] { robot::Click(form["Fill"]); });
    form.Then(
        [&]
        {
            robot::Focus(form["Items"]);
            robot::PressKey(VK_DOWN);
            robot::PressKey(VK_DOWN);
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::SelectedItemOf(form["Items"]), 2);
            SendMessageA(form["Marks"], LB_SETCURSEL, 0, 0);
            robot::Focus(form["Marks"]);
            robot::PressKey(VK_DOWN);
        });
    form.Then([&] { robot::PressKey(VK_SPACE); });
    form.Then([&] { EXPECT_EQ(robot::SelectedItemOf(form["Marks"]), 1); });
    form.main.output.front() = "(\"%s %s\", Items, Marks(\",\"))";
    EXPECT_EQ(form.Ok().Open().text, "PL XXone,Xtwo");
}

TEST_F(WholeForm, WorksAsAWhole)
{
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["Remark"]), "remark");
            EXPECT_EQ(robot::ItemsOf(form["Place"]), (Texts{"Head", "small", "medium", "large"}));
            EXPECT_FALSE(IsWindowEnabled(form["Numbered"]));
            robot::Click(form["Signed"]);
        });
    form.Then(
        [&]
        {
            EXPECT_TRUE(IsWindowEnabled(form["Numbered"]));
            EXPECT_EQ(robot::TextOf(form["Title"]), "Quarterly report");
            robot::Click(form["Fill"]);
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::ItemsOf(form["Items"]), (Texts{"Apple", "Pear", "Plum", "Quince"}));
            robot::DoubleClickAt(form["Items"], 40, 5);
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::ItemsOf(form["Items"]), (Texts{"Pear", "Plum", "Quince"}));
            robot::Click(form["More"]);
        });
    form.In("Inner", [&] { robot::ReplaceText(form["Field"], "from inside"); });
    form.Ok("Inner");
    form.Then(
        [&]
        {
            SendMessageA(form["Marks"], LB_SETCURSEL, 1, 0);
            robot::Click(form["Earlier"]);
        });
    EXPECT_EQ(form.Ok().Open("remark#x").text, "final;A. Writer;-two,XXone;from inside");
}

TEST_F(WholeForm, HundredRoundsTakeNothingWithThem)
{
    // The sample library would remember each call.
    form.main.values.emplace_back("Check=ACTION,nasty,EchoText,Send,Take");
    ExpectNoGrowth(
        [&]
        {
            form.Then(
                [&]
                {
                    for (const char* button : {"Fill", "Add", "Delete", "Down", "Check", "More"})
                        robot::Click(form[button]);
                });
            form.Ok("Inner");
            form.Ok().Open("remark#x");
        });
}

TEST_F(WholeForm, HundredFailingRoundsTakeNothingWithThem)
{
    form.main.values.emplace_back("Signed=perhaps");
    ExpectNoGrowth([&] { EXPECT_EQ(form.Message().Open().answer, 0); });

    form.main.values.back() = "Add=ACTION,no-such-library,a,b,c";
    form.dialogs["Inner"].values = {"broken"};
    ExpectNoGrowth(
        [&]
        {
            form.Then([&] { robot::Click(form["Add"]); });
            form.Message();
            form.Then([&] { robot::Click(form["More"]); });
            form.Message();
            form.Cancel().Open("remark#x");
        });
}
