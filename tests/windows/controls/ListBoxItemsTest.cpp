// Items of a list box that are added, replaced, deleted and moved.
#include "ListBoxFixture.h"

TEST_F(ListBox, AddingSelectsTheFirstItemWhicheverWasSelected)
{
    form.main.layout.emplace_back("PushButton Add");
    form.main.values.emplace_back("Add=ADD,List,List");
    form.Then(
        [&]
        {
            Select(2);
            Press("Add");
        });
    form.Then(
        [&]
        {
            // The added text is the display string as the list keeps it: the key.
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third", "THREE"}));
            EXPECT_EQ(Selected(), 0);
        });
    form.Ok().Open();
}

TEST_F(ListBox, ReplacingWithoutASelectionMovesTheFocusOnly)
{
    form.main.layout = {"TextBox Edit", "ListBox List", "PushButton Go"};
    form.main.values.emplace_back("Go=DIALOG,Inner,Change,\"\"");
    form.main.input = {"Start: (\"#\", End, \"Rest\", End = List=unknown", "$INPUT, Change",
                       "Start: (\"#\", End, \"Rest\", End = List(MODIFY)"};
    form.dialogs["Inner"] = {.layout = {"Text Label"}, .output = {"(\"new\")"}};
    form.Then([&] { Press("Go"); });
    form.Ok("Inner");
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
            EXPECT_EQ(GetFocus(), form["List"]);
        });
    form.Ok().Open("x");
}

TEST_F(ListBox, AddsAWholeTextOrItsPiecesByTheLengthOfTheSeparators)
{
    static const struct
    {
        const char* fill;
        Texts added;
    } cases[] = {
        {"List(CONCAT)", {"a,b;(c,d)e\n"}},
        {"List(CONCAT,\",\")", {"a", "b;(c,d)e"}},
        {"List(CONCAT,\",\",\";\")", {"a", "b", "(c,d)e"}},
        {"List(CONCAT,\",\",\";\",\"/\")", {}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.fill);
        form.main.values.clear();
        form.main.input = InputTo(c.fill);
        form.Then([&] { EXPECT_EQ(Items(), c.added); });
        form.Ok().Open("a,b;(c,d)e");
    }
}

TEST_F(ListBox, AnUnclosedBracketInAddedValuesIs241)
{
    form.main.input = InputTo("List(CONCAT,\",\")");
    const Form::Outcome outcome = form.Message().Open("a,(b");
    EXPECT_EQ(outcome.answer, 0);
    EXPECT_EQ(outcome.messages, (Texts{"242 ''\n241 ''"}));
}

TEST_F(ListBox, DeletingSelectsTheItemInItsPlaceOrTheLast)
{
    AddButtons();
    form.Then(
        [&]
        {
            Select(1);
            Press("Delete");
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Third"}));
            EXPECT_EQ(Selected(), 1);
            Press("Delete");
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First"}));
            EXPECT_EQ(Selected(), 0);
        });
    form.main.output = {"(\"%s\", List)"};
    EXPECT_EQ(form.Ok().Open().text, "one");
}

TEST_F(ListBox, MovingUpFurtherDownKeepsTheWindowsOrder)
{
    AddButtons();
    form.main.output = {"(\"%s;%s\", List, List(\"/\"))"};
    form.Then(
        [&]
        {
            Select(2);
            Press("Up");
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "THREE", "TWO"}));
            EXPECT_EQ(Selected(), 0);
        });
    EXPECT_EQ(form.Ok().Open().text, "one;First/Second/Third");
}

TEST_F(ListBox, MovingTheFirstItemDownPutsItsNeighbourAtTheEnd)
{
    AddButtons();
    form.Then([&] { Press("Down"); });
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"Second", "ONE", "TWO"})); });
    form.main.output = {"(\"%s\", List(\"/\"))"};
    EXPECT_EQ(form.Ok().Open().text, "Second/Second/First");
}
