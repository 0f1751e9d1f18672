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
