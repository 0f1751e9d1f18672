#include "Form.h"

#include <gtest/gtest.h>

namespace
{

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

    // A list without a selection: the value is none that the list could select.
    void ClearSelection() { form.main.input = InputTo("List=unknown"); }
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

TEST_F(ListBox, PutsSeparatorsBetweenBeforeAndBehindItsValues)
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

TEST_F(ListBox, SetValueOfThreeItemsReachesTheFirstOnly)
{
    static const struct
    {
        const char* value;
        int selected;
    } cases[] = {{"one", 0}, {"two", -1}, {"three", -1}, {"other", -1}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.value);
        form.main.input = InputTo("List");
        form.Then([&] { EXPECT_EQ(Selected(), c.selected); });
        form.Ok().Open(c.value);
    }
}

TEST_F(ListBox, SetValueNeverReachesTheLastTwoItems)
{
    form.main.values = {"List=a,a", "List=b,b", "List=c,c", "List=d,d", "List=e,e"};
    form.main.input = InputTo("List");
    form.Then([&] { EXPECT_EQ(Selected(), 2); }).Ok().Open("c");
    form.Then([&] { EXPECT_EQ(Selected(), -1); }).Ok().Open("d");
    form.Then([&] { EXPECT_EQ(Selected(), -1); }).Ok().Open("e");
}

TEST_F(ListBox, SetValueSelectsTheFirstOfEqualValues)
{
    form.main.values = {"List=a,x", "List=b,y", "List=c,y", "List=d,d", "List=e,e"};
    form.main.input = InputTo("List");
    form.Then([&] { EXPECT_EQ(Selected(), 1); }).Ok().Open("y");
}

TEST_F(ListBox, SetValueOfTwoItemsClearsTheSelection)
{
    form.main.values = {"List=ONE,one", "List=TWO,two"};
    form.main.input = InputTo("List");
    form.Then([&] { EXPECT_EQ(Selected(), -1); }).Ok().Open("one");
}

TEST_F(ListBox, SetValueOfOneItemFindsItOrLeavesTheArray)
{
    form.main.values = {"List=ONE,one"};
    form.main.input = InputTo("List");
    form.Then([&] { EXPECT_EQ(Selected(), 0); }).Ok().Open("one");

    const Form::Outcome outcome = form.Message().Open("other");
    EXPECT_EQ(outcome.answer, 0);
    EXPECT_EQ(outcome.messages, (Texts{invalidArgument}));
}

TEST_F(ListBox, SetValueOnAnEmptyListRaisesTheInvalidArgument)
{
    form.main.values.clear();
    form.main.input = InputTo("List");
    const Form::Outcome outcome = form.Message().Open("one");
    EXPECT_EQ(outcome.answer, 0);
    EXPECT_EQ(outcome.messages, (Texts{invalidArgument}));
}

TEST_F(ListBox, ReadingAValueWithoutASelectionPullsTheFocus)
{
    ClearSelection();
    form.main.layout = {"TextBox Edit", "ListBox List", "Text Label", "PushButton Run"};
    form.main.values.emplace_back("Run=REJECT,x");
    form.main.rules = {"Label/VISIBLE=List(one)"};
    form.Then([&] { Press("Run"); });
    form.Then([&] { EXPECT_EQ(GetFocus(), form["List"]); });
    form.main.output = {"(\"<%s>\", List)"};
    EXPECT_EQ(form.Ok().Open("x").text, "<>");
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

TEST_F(ListBox, AddedItemsGoToTheEndAndSelectTheFirst)
{
    form.main.input = InputTo("List(ADD)");
    form.main.output = {"(\"%s\", List(\"/\"))"};
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third", "new"}));
            EXPECT_EQ(Selected(), 0);
            Select(3);
        });
    EXPECT_EQ(form.Ok().Open("new").text, "First/Second/Third/new");
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

TEST_F(ListBox, AnAddedItemWithoutValueDeliversWhatItShows)
{
    form.main.input = InputTo("List(ADD)");
    form.main.output = {"(\"%s\", List)"};
    form.Then([&] { Select(3); });
    EXPECT_EQ(form.Ok().Open("new").text, "new");
}

TEST_F(ListBox, ReplacesTextValueAndSelectionInPlace)
{
    form.main.input = InputTo("List(MODIFY)");
    form.main.output = {"(\"%s;%s\", List, List(\"/\"))"};
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"new", "Second", "Third"}));
            EXPECT_EQ(Selected(), 0);
        });
    EXPECT_EQ(form.Ok().Open("new").text, "new;new/Second/Third");
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

TEST_F(ListBox, DeletingWithoutASelectionMovesTheFocusOnly)
{
    ClearSelection();
    AddButtons();
    form.Then([&] { Press("Delete"); });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items().size(), 3U);
            EXPECT_EQ(GetFocus(), form["List"]);
        });
    form.Ok().Open("x");
}

TEST_F(ListBox, ClearEmptiesTheListFromASelection)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.rules = {"List/CLEAR=Edit"};
    form.Then([&] { robot::ReplaceText(form["Edit"], "x"); });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), Texts{});
            EXPECT_EQ(Selected(), -1);
        });
    form.Ok().Open();
}

TEST_F(ListBox, ClearLeavesAListWithoutASelectionAlone)
{
    ClearSelection();
    form.main.layout.emplace_back("TextBox Edit");
    form.main.rules = {"List/CLEAR=Edit"};
    form.Then([&] { robot::ReplaceText(form["Edit"], "x"); });
    form.Then([&] { EXPECT_EQ(Items().size(), 3U); });
    form.Ok().Open("x");
}

TEST_F(ListBox, MovingUpFromTheSecondPlacePutsTheItemAtTheEnd)
{
    AddButtons();
    form.main.output = {"(\"%s;%s\", List, List(\"/\"))"};
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
            EXPECT_EQ(Items(), (Texts{"ONE", "Third", "TWO"}));
            EXPECT_EQ(Selected(), 0);
        });
    form.Ok();
    // The values stand in another order than the user sees: the selected first item delivers the third's value.
    EXPECT_EQ(form.Open().text, "three;Third/First/Second");
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

TEST_F(ListBox, MovingTheFirstItemUpRaises235)
{
    AddButtons();
    form.Then([&] { Press("Up"); });
    form.Message();
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"})); });
    EXPECT_EQ(form.Ok().Open().messages, (Texts{"235 ''"}));
}

TEST_F(ListBox, MovingTheLastItemDownRaisesTheInvalidArgumentNotANumber)
{
    AddButtons();
    form.Then(
        [&]
        {
            Select(2);
            Press("Down");
        });
    form.Message();
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"})); });
    EXPECT_EQ(form.Ok().Open().messages, (Texts{invalidArgument}));
}

TEST_F(ListBox, MovingWithoutASelectionMovesTheFocusOnly)
{
    ClearSelection();
    AddButtons();
    form.Then([&] { Press("Up"); });
    form.Then(
        [&]
        {
            EXPECT_EQ(GetFocus(), form["List"]);
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
        });
    EXPECT_EQ(form.Ok().Open("x").messages, Texts{});
}

TEST_F(ListBox, HasContentAsLongAsItHasItems)
{
    AddButtons();
    form.main.layout.emplace_back("TextBox Edit");
    form.main.values = {"List=ONE,one", "Delete=DELETE,List"};
    form.main.rules = {"Edit/ACTIVE=List(NOTNULL)"};
    form.Then(
        [&]
        {
            EXPECT_TRUE(IsWindowEnabled(form["Edit"]));
            Press("Delete");
        });
    form.Then([&] { EXPECT_FALSE(IsWindowEnabled(form["Edit"])); });
    form.Ok().Open();
}

TEST_F(ListBox, TakesTheFourOptionWords)
{
    static const struct
    {
        const char* word;
        bool visible;
        bool enabled;
    } cases[] = {
        {"HIDDEN", false, true}, {"INVISIBLE", false, true}, {"DISPLAYONLY", true, false}, {"INACTIVE", true, false}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.word);
        form.main.values = {std::string("List=") + c.word};
        form.Then(
            [&]
            {
                EXPECT_EQ(IsWindowVisible(form["List"]) != FALSE, c.visible);
                EXPECT_EQ(IsWindowEnabled(form["List"]) != FALSE, c.enabled);
            });
        form.Ok().Open();
    }
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
