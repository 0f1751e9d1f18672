// What a list box does otherwise than combo boxes and check lists; what they share stands in ItemListTest.cpp.
#include "Form.h"

#include <gtest/gtest.h>

namespace
{

// A form with a list box of three items.
class ListBox : public testing::Test
{
protected:
    ListBox()
    {
        form.main.layout = {"ListBox List"};
        form.main.values = {"List=ONE,one", "List=TWO,two", "List=THREE,three"};
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}, {"THREE", "Third"}};
    }

    Texts Items() const { return robot::ItemsOf(form["List"]); }
    int Selected() const { return robot::SelectedItemOf(form["List"]); }
    void Select(int index) const { robot::SelectItem(form["List"], index); }

    // Buttons for the actions on the list.
    void AddButtons()
    {
        form.main.layout.insert(form.main.layout.end(), {"PushButton Up", "PushButton Down", "PushButton Delete"});
        form.main.values.insert(form.main.values.end(), {"Up=UP,List", "Down=DOWN,List", "Delete=DELETE,List"});
    }
    void Press(const std::string& button) const { robot::Click(form[button]); }

    Form form;
};

} // namespace

TEST_F(ListBox, ShowsTheTextsOfItsKeysInTheirOrderAndSelectsTheFirst)
{
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
            EXPECT_EQ(Selected(), 0);
        });
    form.main.output = {"(\"%s\", List)"};
    EXPECT_EQ(form.Ok().Open().text, "one");
}

TEST_F(ListBox, ShowsASentinelForAKeyWithoutTextAndDeliversTheKeyAmongAllValues)
{
    form.main.values.emplace_back("List=Nowhere,four");
    form.Then([&] { EXPECT_EQ(Items().back(), "no value present"); });
    form.main.output = {"(\"%s\", List(\"/\"))"};
    EXPECT_EQ(form.Ok().Open().text, "First/Second/Third/Nowhere");
}

TEST_F(ListBox, DeliversTheDisplayKeyOfAnItemWithoutValueAmongAllValues)
{
    form.main.values = {"List=ONE,\"\"", "List=TWO,two"};
    form.main.output = {"(\"%s\", List(\"/\"))"};
    EXPECT_EQ(form.Ok().Open().text, "ONE/Second");
}

TEST_F(ListBox, PutsSeparatorsBetweenBeforeAndAfterItsValues)
{
    form.main.output = {"(\"%s;%s;%s\", List(\",\",\"[\",\"]\"), List(\",\",\"[\"), List())"};
    EXPECT_EQ(form.Ok().Open().text, "[First,Second,Third];[First,Second,Third; First Second Third ");
}

TEST_F(ListBox, AnEmptyListGivesItsOuterSeparatorsOnly)
{
    form.main.values.clear();
    form.main.output = {"(\"%s|%s\", List(\",\",\"[\",\"]\"), List(\",\"))"};
    EXPECT_EQ(form.Ok().Open().text, "[]|");
}

TEST_F(ListBox, NeverTakesAnOptionWordForAnItem)
{
    form.main.values = {"List=ONE,one", "List=TWO,INACTIVE", "List=THREE,three"};
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Third"}));
            EXPECT_FALSE(IsWindowEnabled(form["List"]));
        });
    form.Ok().Open();
}

TEST_F(ListBox, CountsAsChangedByItsSelectionOnly)
{
    form.main.layout = {"ListBox List", "TextBox Edit", "PushButton Add", "Text Source"};
    form.main.values.insert(form.main.values.end(), {"Edit=kept", "Add=ADD,List,List"});
    form.main.rules = {"Edit/CLEAR=List"};
    form.Then([&] { Press("Add"); });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items().size(), 4U);
            EXPECT_EQ(robot::TextOf(form["Edit"]), "kept");
            Select(2);
        });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); });
    form.Ok().Open();
}

TEST_F(ListBox, HasTheStyleOfAPlainScrollingListWithATabStop)
{
    form.Then(
        [&]
        {
            const auto style = static_cast<DWORD>(GetWindowLongPtrA(form["List"], GWL_STYLE));
            const auto exStyle = static_cast<DWORD>(GetWindowLongPtrA(form["List"], GWL_EXSTYLE));
            EXPECT_EQ(style & 0xFFFFU, static_cast<DWORD>(LBS_NOTIFY | LBS_SORT));
            EXPECT_TRUE((style & WS_TABSTOP) != 0);
            EXPECT_TRUE((exStyle & WS_EX_CLIENTEDGE) != 0);
            EXPECT_EQ(GetDlgCtrlID(form["List"]), 0);
        });
    form.Ok().Open();
}

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
