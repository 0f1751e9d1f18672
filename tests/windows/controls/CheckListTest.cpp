#include "CheckListFixture.h"

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

TEST_F(CheckList, PutsSeparatorsBetweenBeforeAndAfterItsValues)
{
    form.main.output = {"(\"%s\", List(\",\",\"[\",\"]\"))"};
    EXPECT_EQ(form.Ok().Open().text, "[XXone,-xtwo,-tri]");
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
    // Reported, not raised: the rules run after the action.
    form.Then([&] { EXPECT_TRUE(IsWindowEnabled(form["Edit"])); });
    const Form::Outcome outcome = form.Ok().Open();
    EXPECT_EQ(outcome.messages, (Texts{"235 ''", "234 ''"}));
    EXPECT_EQ(outcome.text, "XXone/-xtwo/-tri");
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
