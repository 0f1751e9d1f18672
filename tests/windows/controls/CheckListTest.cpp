#include "Form.h"

#include <gtest/gtest.h>

namespace
{

class CheckList : public testing::Test
{
protected:
    CheckList()
    {
        form.main.layout = {"CheckListBox List"};
        form.main.values = {"List=ONE,Xone", "List=TWO,xtwo", "List=THREE,tri"};
        form.main.output = {"(\"%s\", List(\"/\"))"};
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}, {"THREE", "Third"}};
    }

    Texts Items() const { return robot::ItemsOf(form["List"]); }
    int Selected() const { return robot::SelectedItemOf(form["List"]); }
    void Select(int index) const { SendMessageA(form["List"], LB_SETCURSEL, static_cast<WPARAM>(index), 0); }
    void Press(const std::string& button) const { robot::Click(form[button]); }
    void AddButtons()
    {
        form.main.layout.insert(form.main.layout.end(), {"PushButton Up", "PushButton Down", "PushButton Delete"});
        form.main.values.insert(form.main.values.end(), {"Up=UP,List", "Down=DOWN,List", "Delete=DELETE,List"});
    }
    // A press of the left button on the mark of an item, and behind its text.
    void ClickMark(int index) const { ClickItem(index, 6); }
    void ClickText(int index) const { ClickItem(index, 60); }
    void ClickItem(int index, int x) const
    {
        const RECT item = ItemArea(index);
        robot::ClickAt(form["List"], x, (item.top + item.bottom) / 2);
    }
    RECT ItemArea(int index) const
    {
        RECT item = {};
        SendMessageA(form["List"], LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        return item;
    }

    Form form;
};

} // namespace

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

TEST_F(CheckList, AllValuesTakeTheTextOfAValueThatIsAKeyAndLeaveItsMarkOut)
{
    form.main.values = {"List=ONE,TWO", "List=TWO,Xb"};
    EXPECT_EQ(form.Ok().Open().text, "Second/XXb");
}

TEST_F(CheckList, AllValuesSkipAnEmptyValueButNotItsSeparator)
{
    form.main.values = {"List=ONE,a", "List=TWO,\"\"", "List=THREE,c"};
    EXPECT_EQ(form.Ok().Open().text, "-a//-c");
}

TEST_F(CheckList, PutsSeparatorsBetweenBeforeAndBehindItsValues)
{
    form.main.output = {"(\"%s\", List(\",\",\"[\",\"]\"))"};
    EXPECT_EQ(form.Ok().Open().text, "[XXone,-xtwo,-tri]");
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

TEST_F(CheckList, AnAddRuleHasNoEffect)
{
    form.main.input = InputTo("List(ADD)");
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"})); });
    form.Ok().Open("new");
}

TEST_F(CheckList, AnAddButtonHasNoEffect)
{
    form.main.layout.insert(form.main.layout.end(), {"ListBox Source", "PushButton Add"});
    form.main.values.insert(form.main.values.end(), {"Source=ONE,one", "Add=ADD,Source,List"});
    form.Then([&] { Press("Add"); });
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"})); });
    form.Ok().Open();
}

TEST_F(CheckList, AddedValuesLandOnTopInReverseOrderAndChecked)
{
    form.main.input = InputTo("List(CONCAT,\",\")");
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"c", "b", "a", "First", "Second", "Third"}));
            EXPECT_EQ(Selected(), 0);
        });
    EXPECT_EQ(form.Ok().Open("a,b,c").text, "Xc/Xb/Xa/XXone/-xtwo/-tri");
}

TEST_F(CheckList, AddsAWholeTextWithoutASeparator)
{
    form.main.values.clear();
    form.main.input = InputTo("List(CONCAT)");
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"a,b\n"})); });
    form.Ok().Open("a,b");
}

TEST_F(CheckList, SetValueStopsTwoItemsBeforeTheEndToo)
{
    form.main.input = InputTo("List");
    form.Then([&] { EXPECT_EQ(Selected(), 0); }).Ok().Open("Xone");
    form.Then([&] { EXPECT_EQ(Selected(), -1); }).Ok().Open("xtwo");
    form.Then([&] { EXPECT_EQ(Selected(), -1); }).Ok().Open("tri");

    form.main.values.clear();
    EXPECT_EQ(form.Message().Open("one").messages, (Texts{invalidArgument}));
}

TEST_F(CheckList, ValueAndShownTextAreThoseOfTheSelectedItem)
{
    form.main.layout.insert(form.main.layout.end(), {"ListBox Target", "PushButton Add"});
    form.main.values.emplace_back("Add=ADD,List,Target");
    form.main.output = {"(\"%s\", List)"};
    form.Then(
        [&]
        {
            Select(1);
            Press("Add");
        });
    form.Then([&] { EXPECT_EQ(robot::ItemsOf(form["Target"]), (Texts{"TWO"})); });
    EXPECT_EQ(form.Ok().Open().text, "xtwo");
}

TEST_F(CheckList, ReadingAValueWithoutASelectionPullsTheFocus)
{
    form.main.layout = {"TextBox Edit", "CheckListBox List", "Text Label", "PushButton Run"};
    form.main.values.emplace_back("Run=REJECT,x");
    form.main.rules = {"Label/VISIBLE=List(Xone)"};
    form.Then([&] { Press("Run"); });
    form.Then([&] { EXPECT_EQ(GetFocus(), form["List"]); });
    form.Ok().Open();
}

TEST_F(CheckList, MovesItemsWithTheirValuesAndMarks)
{
    AddButtons();
    form.Then(
        [&]
        {
            Select(1);
            Press("Up");
        });
    form.Then(
        [&]
        {
            // What is put back is the display string as the list keeps it: the key.
            EXPECT_EQ(Items(), (Texts{"TWO", "ONE", "Third"}));
            EXPECT_EQ(Selected(), 0);
            Press("Down");
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"ONE", "TWO", "Third"}));
            EXPECT_EQ(Selected(), 1);
            Press("Down");
        });
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"ONE", "THREE", "TWO"})); });
    EXPECT_EQ(form.Ok().Open().text, "XXone/-tri/-xtwo");
}

TEST_F(CheckList, MovingBeyondTheEndsReports235And234)
{
    AddButtons();
    form.main.layout.emplace_back("TextBox Edit");
    form.main.rules = {"Edit/ACTIVE=List(tri)"};
    form.Then(
        [&]
        {
            Select(0);
            Press("Up");
        });
    form.Message();
    form.Then(
        [&]
        {
            EXPECT_FALSE(IsWindowEnabled(form["Edit"]));
            Select(2);
            Press("Down");
        });
    form.Message();
    // Reported, not raised: the rules run behind the action.
    form.Then([&] { EXPECT_TRUE(IsWindowEnabled(form["Edit"])); });
    const Form::Outcome outcome = form.Ok().Open();
    EXPECT_EQ(outcome.messages, (Texts{"235 ''", "234 ''"}));
    EXPECT_EQ(outcome.text, "XXone/-xtwo/-tri");
}

TEST_F(CheckList, MovingOrDeletingWithoutASelectionMovesTheFocusOnly)
{
    AddButtons();
    for (const char* button : {"Up", "Down", "Delete"})
    {
        form.Then([&, button] { Press(button); });
        form.Then([&] { EXPECT_EQ(GetFocus(), form["List"]); });
    }
    const Form::Outcome outcome = form.Ok().Open();
    EXPECT_EQ(outcome.messages, Texts{});
    EXPECT_EQ(outcome.text, "XXone/-xtwo/-tri");
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

TEST_F(CheckList, ClearEmptiesTheListFromASelectionOnly)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.rules = {"List/CLEAR=Edit"};
    form.Then([&] { robot::ReplaceText(form["Edit"], "x"); });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items().size(), 3U);
            Select(1);
            robot::ReplaceText(form["Edit"], "y");
        });
    form.Then([&] { EXPECT_EQ(Items().size(), 0U); });
    EXPECT_EQ(form.Ok().Open().text, "");
}

TEST_F(CheckList, CountsAsChangedByItsSelectionAndHasContentByItsItems)
{
    AddButtons();
    form.main.layout.insert(form.main.layout.end(), {"TextBox Edit", "TextBox Other"});
    form.main.values = {"List=ONE,one", "Edit=kept", "Delete=DELETE,List"};
    form.main.rules = {"Edit/CLEAR=List", "Other/ACTIVE=List(NOTNULL)"};
    form.Then([&] { ClickMark(0); });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["Edit"]), "");
            EXPECT_TRUE(IsWindowEnabled(form["Other"]));
            Press("Delete");
        });
    form.Then([&] { EXPECT_FALSE(IsWindowEnabled(form["Other"])); });
    form.Ok().Open();
}

TEST_F(CheckList, KeepsItsItemsReadableAndDrawsThemItself)
{
    form.Then(
        [&]
        {
            const auto style = static_cast<DWORD>(GetWindowLongPtrA(form["List"], GWL_STYLE));
            EXPECT_EQ(style & 0xFFFFU, static_cast<DWORD>(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS));
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
            // An item has room for a line of text and for its mark.
            EXPECT_GE(ItemArea(0).bottom, 13);
        });
    form.Ok().Open();
}
