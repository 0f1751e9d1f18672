#include "ListBoxFixture.h"

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
