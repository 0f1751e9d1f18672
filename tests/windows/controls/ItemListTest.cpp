// What lists and combo boxes have in common, and where they differ.
#include "Form.h"

#include <gtest/gtest.h>

namespace
{

// A list of three items, with buttons that work on it, and a field beside it.
class ItemList : public testing::TestWithParam<const char*>
{
protected:
    ItemList()
    {
        form.main.layout = {"TextBox Edit", std::string(GetParam()) + " List", "PushButton Up", "PushButton Down",
                            "PushButton Delete"};
        form.main.values = {"List=ONE,one", "List=TWO,two", "List=THREE,three"};
        form.main.values.insert(form.main.values.end(), {"Up=UP,List", "Down=DOWN,List", "Delete=DELETE,List"});
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}, {"THREE", "Third"}};
    }

    Texts Items() const { return robot::ItemsOf(form["List"]); }
    int Selected() const { return robot::SelectedItemOf(form["List"]); }
    void Select(int index) const { robot::SelectItem(form["List"], index); }
    void Press(const std::string& button) const { robot::Click(form[button]); }
    // The field in a combo box counts as the box.
    bool HasFocus() const { return GetFocus() == form["List"] || IsChild(form["List"], GetFocus()) != FALSE; }

    Form form;
};

// Those that add an item at the end of their arrays, wherever it stands in the window.
class AppendingList : public ItemList
{
protected:
    // What an item delivers among all values when its own is no key of a text.
    static std::string Delivered(const std::string& item)
    {
        return GetParam() == std::string("ListBox") ? item : "no value present";
    }
};

// Those that search for a value in all items but the last two.
class BoundedList : public ItemList
{
};

} // namespace

TEST_P(ItemList, ActionsWithoutASelectionMoveTheFocusOnly)
{
    for (const char* button : {"Up", "Down", "Delete"})
    {
        form.Then(
            [this, button]
            {
                Select(-1);
                Press(button);
            });
        form.Then(
            [this]
            {
                EXPECT_TRUE(HasFocus());
                EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
            });
    }
    EXPECT_EQ(form.Ok().Open().messages, Texts{});
}

TEST_P(ItemList, ClearEmptiesItFromASelectionOnly)
{
    form.main.rules = {"List/CLEAR=Edit"};
    form.Then(
        [&]
        {
            Select(-1);
            robot::ReplaceText(form["Edit"], "x");
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items().size(), 3U);
            Select(1);
            robot::ReplaceText(form["Edit"], "y");
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), Texts{});
            EXPECT_EQ(Selected(), -1);
            EXPECT_EQ(robot::TextOf(form["List"]), "");
        });
    form.Ok().Open();
}

TEST_P(ItemList, CountsAsChangedByItsSelectionAndHasContentByItsItems)
{
    form.main.layout.emplace_back("TextBox Other");
    form.main.values.emplace_back("Edit=kept");
    form.main.rules = {"Edit/CLEAR=List", "Other/ACTIVE=List(NOTNULL)"};
    form.Then([&] { Select(2); });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); });
    for (int item = 0; item < 3; ++item)
    {
        form.Then(
            [&]
            {
                EXPECT_TRUE(IsWindowEnabled(form["Other"]));
                Press("Delete");
            });
    }
    form.Then([&] { EXPECT_FALSE(IsWindowEnabled(form["Other"])); });
    form.Ok().Open();
}

TEST_P(ItemList, MovingTheFirstItemUpIs235RaisedByAListBoxOnly)
{
    form.main.layout.emplace_back("ListBox Source");
    form.main.values.insert(form.main.values.end(), {"Edit=kept", "Source=a,a"});
    form.main.rules = {"Edit/CLEAR=Source"};
    form.Then(
        [&]
        {
            Select(0);
            robot::Focus(form["Up"]);
        });
    form.Then(
        [&]
        {
            // Sends no command, so only the end of the action can run the rules.
            SendMessageA(form["Source"], LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            SendMessageA(form["Up"], BM_SETSTATE, TRUE, 0);
            SendMessageA(form["Up"], BM_SETSTATE, FALSE, 0);
            EXPECT_EQ(robot::TextOf(form["Edit"]), GetParam() == std::string("ListBox") ? "kept" : "");
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
        });
    EXPECT_EQ(form.Message().Ok().Open().messages, (Texts{"235 ''"}));
}

INSTANTIATE_TEST_SUITE_P(All, ItemList, testing::Values("ListBox", "CheckListBox", "ComboBox", "DropListBox"));

TEST_P(AppendingList, AddedItemsGoToTheEndAndSelectTheFirst)
{
    form.main.input = InputTo("List(ADD)");
    form.main.output = {"(\"%s;%s\", List, List(\"/\"))"};
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third", "new"}));
            EXPECT_EQ(Selected(), 0);
            Select(3);
        });
    // Without a value of its own an item delivers what it shows.
    EXPECT_EQ(form.Ok().Open("new").text, "new;First/Second/Third/" + Delivered("new"));
}

TEST_P(AppendingList, ReplacesTextValueAndSelectionInPlace)
{
    form.main.input = InputTo("List(MODIFY)");
    form.main.output = {"(\"%s;%s\", List, List(\"/\"))"};
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"new", "Second", "Third"}));
            EXPECT_EQ(Selected(), 0);
        });
    EXPECT_EQ(form.Ok().Open("new").text, "new;" + Delivered("new") + "/Second/Third");
}

TEST_P(AppendingList, MovingUpFromTheSecondPlacePutsTheItemAtTheEnd)
{
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
    // The values stand in another order than the user sees: the selected first item delivers the third's value.
    EXPECT_EQ(form.Ok().Open().text, "three;Third/First/Second");
}

TEST_P(AppendingList, MovingTheLastItemDownRaisesTheInvalidArgumentNotANumber)
{
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

INSTANTIATE_TEST_SUITE_P(Lists, AppendingList, testing::Values("ListBox", "ComboBox", "DropListBox"));

TEST_P(BoundedList, SetValueNeverReachesTheLastTwoItems)
{
    static const struct
    {
        Texts values;
        const char* value;
        int selected;
    } cases[] = {
        {{"one"}, "one", 0},
        {{"one", "two"}, "one", -1},
        {{"one", "two", "three"}, "one", 0},
        {{"one", "two", "three"}, "two", -1},
        {{"one", "two", "three"}, "three", -1},
        {{"one", "two", "three"}, "other", -1},
        {{"a", "b", "c", "d", "e"}, "c", 2},
        {{"a", "b", "c", "d", "e"}, "d", -1},
        {{"x", "y", "y", "d", "e"}, "y", 1},
    };
    form.main.input = InputTo("List");
    for (const auto& c : cases)
    {
        SCOPED_TRACE(testing::PrintToString(c.values) + c.value);
        form.main.values.clear();
        for (const std::string& value : c.values)
            form.main.values.push_back("List=ONE," + value);
        form.Then([&] { EXPECT_EQ(Selected(), c.selected); }).Ok().Open(c.value);
    }
}

TEST_P(BoundedList, SetValueOnAnEmptyListOrOnOneOtherItemRaisesTheInvalidArgument)
{
    form.main.input = InputTo("List");
    for (const Texts& values : {Texts{}, Texts{"List=ONE,one"}})
    {
        form.main.values = values;
        const Form::Outcome outcome = form.Message().Open("other");
        EXPECT_EQ(outcome.answer, 0);
        EXPECT_EQ(outcome.messages, (Texts{invalidArgument}));
    }
}

TEST_P(BoundedList, ReadingAValueWithoutASelectionPullsTheFocus)
{
    form.main.layout.insert(form.main.layout.end(), {"Text Label", "PushButton Run"});
    form.main.values.emplace_back("Run=REJECT,x");
    form.main.rules = {"Label/VISIBLE=List(one)"};
    form.main.output = {"(\"<%s>\", List)"};
    form.Then(
        [&]
        {
            SendMessageA(form["List"], LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            robot::Focus(form["Edit"]);
            Press("Run");
        });
    form.Then([&] { EXPECT_TRUE(HasFocus()); });
    EXPECT_EQ(form.Ok().Open().text, "<>");
}

INSTANTIATE_TEST_SUITE_P(Lists, BoundedList, testing::Values("ListBox", "CheckListBox"));
