// The marks of a check list, by mouse and by keyboard.
#include "CheckListFixture.h"

TEST_F(CheckList, AValueWithACapitalXStartsCheckedAndOneWithASmallXDoesNot)
{
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
            EXPECT_EQ(Selected(), -1);
        });
    EXPECT_EQ(form.Ok().Open().text, "XXone/-xtwo/-tri");
}

TEST_F(CheckList, AClickOnTheMarkTogglesItAndSelectsTheItem)
{
    form.Then([&] { ClickMark(1); });
    form.Then(
        [&]
        {
            EXPECT_EQ(Selected(), 1);
            ClickMark(0);
        });
    EXPECT_EQ(form.Ok().Open().text, "-Xone/Xxtwo/-tri");
}

TEST_F(CheckList, AClickOnTheTextSelectsOnly)
{
    form.Then([&] { ClickText(1); });
    form.Then([&] { EXPECT_EQ(Selected(), 1); });
    EXPECT_EQ(form.Ok().Open().text, "XXone/-xtwo/-tri");
}

TEST_F(CheckList, AClickBelowTheLastItemTogglesNothing)
{
    form.Then([&] { robot::ClickAt(form["List"], 6, ItemArea(2).bottom + 2); });
    EXPECT_EQ(form.Ok().Open().text, "XXone/-xtwo/-tri");
}

TEST_F(CheckList, TwoQuickClicksOnTheMarkToggleTwice)
{
    form.Then([&] { robot::DoubleClickAt(form["List"], 6, ItemArea(0).bottom / 2); });
    EXPECT_EQ(form.Ok().Open().text, "XXone/-xtwo/-tri");
}

TEST_F(CheckList, TheSpaceKeyTogglesTheItemOfTheCaret)
{
    form.Then(
        [&]
        {
            robot::Focus(form["List"]);
            Select(0);
            robot::PressKey(VK_DOWN);
            robot::PressKey(VK_SPACE);
            robot::PressKey(VK_DOWN);
            robot::PressKey(VK_SPACE);
            robot::PressKey(VK_SPACE);
        });
    form.Then([&] { EXPECT_EQ(Selected(), 2); });
    EXPECT_EQ(form.Ok().Open().text, "XXone/Xxtwo/-tri");
}

TEST_F(CheckList, TheSpaceKeyDoesNotSearchForABlank)
{
    form.texts["THREE"] = "\" blank\"";
    form.Then(
        [&]
        {
            robot::Focus(form["List"]);
            Select(0);
            robot::PressKey(VK_SPACE);
        });
    form.Then([&] { EXPECT_EQ(Selected(), 0); });
    EXPECT_EQ(form.Ok().Open().text, "-Xone/-xtwo/-tri");
}

TEST_F(CheckList, TheSpaceKeyInAnEmptyListDoesNothing)
{
    form.main.values.clear();
    form.Then(
        [&]
        {
            robot::Focus(form["List"]);
            robot::PressKey(VK_SPACE);
        });
    EXPECT_EQ(form.Ok().Open().text, "");
}

TEST_F(CheckList, TogglingAMarkRunsTheRulesAndSelectingAnItemDoesNot)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.values.emplace_back("Edit=kept");
    form.main.rules = {"Edit/CLEAR=List"};
    form.Then([&] { ClickText(1); });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["Edit"]), "kept");
            ClickMark(1);
        });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); });
    form.Ok().Open();
}

TEST_F(CheckList, MarksStayWithTheirItemsWhenOneIsDeleted)
{
    AddButtons();
    form.Then([&] { ClickMark(2); });
    form.Then(
        [&]
        {
            Select(1);
            Press("Delete");
        });
    form.Then([&] { EXPECT_EQ(Selected(), 1); });
    EXPECT_EQ(form.Ok().Open().text, "XXone/Xtri");
}

TEST_F(CheckList, AReplacedItemLosesItsMark)
{
    form.main.layout.emplace_back("PushButton Go");
    form.main.values.emplace_back("Go=DIALOG,Inner,Change,\"\"");
    form.main.input = {"$INPUT, Change", "Start: (\"#\", End, \"Rest\", End = List(MODIFY)"};
    form.dialogs["Inner"] = {.layout = {"Text Label"}, .output = {"(\"new\")"}};
    form.Then(
        [&]
        {
            Select(0);
            Press("Go");
        });
    form.Ok("Inner");
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"new", "Second", "Third"})); });
    EXPECT_EQ(form.Ok().Open().text, "-new/-xtwo/-tri");
}
