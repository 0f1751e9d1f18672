#include "Form.h"

#include <gtest/gtest.h>

namespace
{

class ComboBox : public testing::Test
{
protected:
    ComboBox()
    {
        form.main.layout = {"ComboBox Box", "DropListBox Drop"};
        form.main.values = {"Box=ONE,one", "Box=TWO,two", "Box=THREE,three", "Drop=ONE,one", "Drop=TWO,two"};
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}, {"THREE", "Third"}};
    }

    Texts Items(const std::string& name = "Box") const { return robot::ItemsOf(form[name]); }
    int Selected(const std::string& name = "Box") const { return robot::SelectedItemOf(form[name]); }
    std::string Shown(const std::string& name = "Box") const { return robot::TextOf(form[name]); }
    void Select(int index) const { robot::SelectItem(form["Box"], index); }
    void Press(const std::string& button) const { robot::Click(form[button]); }
    void TypeInto(const std::string& text) const
    {
        const HWND edit = FindWindowExA(form["Box"], nullptr, "Edit", nullptr);
        SendMessageA(edit, EM_SETSEL, 0, -1);
        SendMessageA(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    }
    void AddButtons()
    {
        form.main.layout.insert(form.main.layout.end(), {"PushButton Up", "PushButton Down", "PushButton Delete"});
        form.main.values.insert(form.main.values.end(), {"Up=UP,Box", "Down=DOWN,Box", "Delete=DELETE,Box"});
    }

    Form form;
};

} // namespace

TEST_F(ComboBox, ShowsTheTextsOfItsKeysAndSelectsTheFirst)
{
    form.main.output = {"(\"%s %s\", Box, Drop)"};
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
            EXPECT_EQ(Items("Drop"), (Texts{"First", "Second"}));
            EXPECT_EQ(Selected(), 0);
            EXPECT_EQ(Shown(), "First");
        });
    EXPECT_EQ(form.Ok().Open().text, "one one");
}

TEST_F(ComboBox, OnlyTheKindWithFreeTextHasAnEditField)
{
    form.Then(
        [&]
        {
            const auto styleOf = [&](const char* name)
            { return static_cast<DWORD>(GetWindowLongPtrA(form[name], GWL_STYLE)) & 0xFFFFU; };
            EXPECT_EQ(styleOf("Box"), static_cast<DWORD>(CBS_DROPDOWN | CBS_AUTOHSCROLL | CBS_NOINTEGRALHEIGHT));
            EXPECT_EQ(styleOf("Drop"), static_cast<DWORD>(CBS_DROPDOWNLIST | CBS_NOINTEGRALHEIGHT));
        });
    form.Ok().Open();
}

TEST_F(ComboBox, SetValueReachesEveryItem)
{
    form.main.input = InputTo("Box");
    form.Then([&] { EXPECT_EQ(Selected(), 1); }).Ok().Open("two");
    form.Then([&] { EXPECT_EQ(Selected(), 2); }).Ok().Open("three");
    form.main.input = InputTo("Drop");
    form.Then([&] { EXPECT_EQ(Selected("Drop"), 1); }).Ok().Open("two");
}

TEST_F(ComboBox, AnUnknownValueBecomesTheFreeText)
{
    form.main.input = InputTo("Box");
    form.main.output = {"(\"%s\", Box)"};
    int selected = -1;
    form.Then(
        [&]
        {
            EXPECT_EQ(Shown(), "free");
            selected = Selected();
        });
    // The window decides whether its old selection stays, and the value follows what it reports.
    const std::string value = form.Ok().Open("free").text;
    EXPECT_EQ(value, selected == 0 ? "one" : "free");
    // Without items there is no selection to stay.
    form.main.values.clear();
    EXPECT_EQ(form.Ok().Open("free").text, "free");
}

TEST_F(ComboBox, AFreeTextOfAnyLengthIsTheValue)
{
    form.main.values.clear();
    form.main.input = InputTo("Box");
    form.main.output = {"(\"%s\", Box)"};
    for (const size_t length : {254U, 255U, 256U, 700U})
    {
        const std::string text(length, 'x');
        EXPECT_EQ(form.Ok().Open(text).text, text);
    }
}

TEST_F(ComboBox, AnUnknownValueLeavesADropListAlone)
{
    form.main.input = InputTo("Drop");
    form.main.output = {"(\"%s\", Drop)"};
    form.Then([&] { EXPECT_EQ(Shown("Drop"), "First"); });
    EXPECT_EQ(form.Ok().Open("free").text, "one");
}

TEST_F(ComboBox, ATypedTextIsTheValueAndMovesNoFocus)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.output = {"(\"%s\", Box)"};
    form.Then(
        [&]
        {
            TypeInto("typed");
            robot::Focus(form["Edit"]);
        });
    EXPECT_EQ(form.Ok().Open().text, "typed");
}

TEST_F(ComboBox, CountsAsChangedByItsSelectionNotByTypedText)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.rules = {"Edit/CLEAR=Box"};
    form.main.values = {"Edit=kept"};
    form.Then([&] { TypeInto("typed"); });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), "kept"); }).Ok().Open();

    form.main.values = {"Edit=kept", "Box=ONE,one", "Box=TWO,two"};
    form.Then([&] { Select(1); });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); }).Ok().Open();
}

TEST_F(ComboBox, AllValuesKeepTheSentinelOfATextThatIsNoKey)
{
    form.main.values = {"Box=ONE,one", "Box=Nowhere,two", "Box=THREE,\"\""};
    form.main.output = {"(\"%s\", Box(\",\",\"[\",\"]\"))"};
    EXPECT_EQ(form.Ok().Open().text, "[First,no value present,THREE]");
}

TEST_F(ComboBox, HasNoDoubleClickStatement)
{
    form.main.values = {"Box=DBLCLICK,OK"};
    form.texts["DBLCLICK"] = "an item";
    form.main.output = {"(\"%s\", Box)"};
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"an item"})); });
    EXPECT_EQ(form.Ok().Open().text, "OK");
}

TEST_F(ComboBox, ConcatenationHasNoEffect)
{
    form.main.input = InputTo("Box(CONCAT,\",\")");
    form.Then([&] { EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"})); });
    form.Ok().Open("a,b");
}

TEST_F(ComboBox, DeletingAnswersTheNewIndexSoThatIndexZeroMovesTheFocusOn)
{
    AddButtons();
    form.main.layout.emplace_back("TextBox Next");
    form.Then(
        [&]
        {
            Select(2);
            Press("Delete");
        });
    // The last of three: index 1 is selected, and the focus stays on the button.
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"First", "Second"}));
            EXPECT_EQ(Selected(), 1);
            EXPECT_EQ(GetFocus(), form["Delete"]);
            Press("Delete");
        });
    // Index 0 is selected: items are left, and yet the focus goes on.
    form.Then(
        [&]
        {
            EXPECT_EQ(Selected(), 0);
            EXPECT_EQ(GetFocus(), form["Next"]);
            Press("Delete");
        });
    // Emptied: the answer is -1, and the focus stays.
    form.Then(
        [&]
        {
            EXPECT_EQ(Items(), Texts{});
            EXPECT_EQ(Shown(), "");
            EXPECT_EQ(GetFocus(), form["Delete"]);
        });
    form.Ok().Open();
}
