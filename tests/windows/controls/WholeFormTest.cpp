// A form of every type word, as a user goes through it.
#include "Form.h"

#include "support/Leaks.h"

#include <gtest/gtest.h>

namespace
{

class WholeForm : public testing::Test
{
protected:
    WholeForm()
    {
        form.main.layout = {"Text Heading",       "TextBox Title",      "TextBox Author",     "OptionGroup .Kind",
                            "OptionButton Draft", "OptionButton Final", "OptionButton Copy",  "CheckBox Signed",
                            "CheckBox Numbered",  "ListBox Items",      "PushButton Add",     "PushButton Delete",
                            "PushButton Up",      "PushButton Down",    "CheckListBox Marks", "PushButton Earlier",
                            "PushButton Later",   "ComboBox Place",     "DropListBox Colour", "PushButton Fill",
                            "PushButton Hide",    "PushButton Lock",    "PushButton More",    "PushButton Check",
                            "TextBox Remark",     "GroupBox Frame"};
        form.main.values = {"Title=FILLEDBY,lytdata,LookUp,,TitleOf",

                            "Author=A. Writer",
                            "Draft=draft",
                            "Final=final",
                            "Copy=copy",
                            "Kind=final",
                            "Signed=ON,signed",
                            "Signed=OFF,open",
                            "Signed=open",
                            "Numbered=INACTIVE",
                            "Items=FILLEDBY,lytdata,OpenList,NextItem,Fruit",
                            "Items=DBLCLICK,Delete",
                            "Items=HEAD,head",
                            "Marks=one,Xone",
                            "Marks=two,two",
                            "Place=FILLEDBY,lytdata,OpenList,NextItem,Sizes,HEAD/head",
                            "Colour=FILLEDBY,lytdata,OpenList,NextItem,Colours",
                            "Add=ADD,Items,Items",
                            "Delete=DELETE,Items",
                            "Up=UP,Items",
                            "Down=DOWN,Items",
                            "Earlier=UP,Marks",
                            "Later=DOWN,Marks",
                            "Fill=FILL,Items",
                            "Hide=VISIBLE,Remark,SHOW",
                            "Lock=ACTIVE,Remark,UNLOCK",
                            "More=DIALOG,Inner,Take,Send",
                            "Check=ACTION,lytdata,Remember,Send,Take"};
        form.main.rules = {"Numbered/ACTIVE=Signed(signed)", "Fill/ACTIVE=Author(NOTNULL)", "Remark/CLEAR=Kind",
                           "Title/FILL=Signed", "More/VISIBLE=Kind(final,copy)"};
        form.main.evaluation = {"Author=NULL:REFUSED"};
        form.main.input = {"Start: (\"#\", Second, \"Rest\", End = Remark",
                           "Second: (\"#\", End, \"Rest\", End = Place(FILL)", "$INPUT, Take",
                           "Start: (\"#\", End, \"Rest\", End = Remark"};
        form.main.output = {"(\"%s;%s;%s;%s\", Kind, Author, Marks(\",\"), Remark)",
                            "$OUTPUT, TitleOf",
                            "(\"texts/title\")",
                            "$OUTPUT, Fruit",
                            "(\"fruit\")",
                            "$OUTPUT, Sizes",
                            "(\"sizes\")",
                            "$OUTPUT, Colours",
                            "(\"colours\")",
                            "$OUTPUT, Send",
                            "(\"<%s>\", Author)"};
        form.dialogs["Inner"] = {.layout = {"TextBox Field", "CheckListBox Marks"},
                                 .values = {"Marks=one,Xone"},
                                 .input = InputTo("Field"),
                                 .output = {"(\"%s\", Field)"}};
        form.texts = {{"HEAD", "Head"}, {"SHOW", "Show"}, {"UNLOCK", "Unlock"}};
    }

    // The name of the control that has the focus, an edit inside a combo box counting as the box.
    std::string FocusName() const
    {
        for (const std::string& line : form.main.layout)
        {
            const std::string name = line.substr(line.find_last_of(" .") + 1);
            if (!line.starts_with("OptionGroup") && (form[name] == GetFocus() || IsChild(form[name], GetFocus())))
                return name;
        }
        return std::to_string(GetDlgCtrlID(GetFocus()));
    }

    Form form;
};

} // namespace

TEST_F(WholeForm, TabGoesThroughItInTheOrderOfTheLayout)
{
    const Texts order = {"Author", "Final",   "Signed", "Items", "Add",    "Delete", "Up",   "Down",
                         "Marks",  "Earlier", "Later",  "Place", "Colour", "Fill",   "Hide", "Lock",
                         "More",   "Check",   "Remark", "1",     "2",      "Title"};
    form.Then([&] { robot::Focus(form["Title"]); });
    for (const std::string& name : order)
    {
        form.Then([&] { robot::PressKey(VK_TAB); });
        form.Then([this, name] { EXPECT_EQ(FocusName(), name); });
    }
    form.Ok().Open();
}

TEST_F(WholeForm, ArrowsMoveTheMarkWithinAGroupOfOptions)
{
    form.Then([&] { robot::Focus(form["Final"]); });
    form.Then([&] { robot::PressKey(VK_DOWN); });
    form.Then([&] { EXPECT_EQ(FocusName(), "Copy"); });
    form.Then([&] { robot::PressKey(VK_UP); });
    form.Then([&] { robot::PressKey(VK_UP); });
    form.Then([&] { EXPECT_EQ(FocusName(), "Draft"); });
    form.main.output.front() = "(\"%s\", Kind)";
    EXPECT_EQ(form.Ok().Open().text, "draft");
}

TEST_F(WholeForm, ArrowsSelectInListsAndBoxes)
{
    form.Then([&] { robot::Click(form["Fill"]); });
    form.Then(
        [&]
        {
            robot::Focus(form["Items"]);
            robot::PressKey(VK_DOWN);
            robot::PressKey(VK_DOWN);
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::SelectedItemOf(form["Items"]), 2);
            SendMessageA(form["Marks"], LB_SETCURSEL, 0, 0);
            robot::Focus(form["Marks"]);
            robot::PressKey(VK_DOWN);
        });
    form.Then([&] { robot::PressKey(VK_SPACE); });
    form.Then([&] { EXPECT_EQ(robot::SelectedItemOf(form["Marks"]), 1); });
    form.main.output.front() = "(\"%s %s\", Items, Marks(\",\"))";
    EXPECT_EQ(form.Ok().Open().text, "PL XXone,Xtwo");
}

TEST_F(WholeForm, WorksAsAWhole)
{
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["Remark"]), "remark");
            EXPECT_EQ(robot::ItemsOf(form["Place"]), (Texts{"Head", "small", "medium", "large"}));
            EXPECT_FALSE(IsWindowEnabled(form["Numbered"]));
            robot::Click(form["Signed"]);
        });
    form.Then(
        [&]
        {
            EXPECT_TRUE(IsWindowEnabled(form["Numbered"]));
            EXPECT_EQ(robot::TextOf(form["Title"]), "Quarterly report");
            robot::Click(form["Fill"]);
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::ItemsOf(form["Items"]), (Texts{"Apple", "Pear", "Plum", "Quince"}));
            robot::DoubleClickAt(form["Items"], 40, 5);
        });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::ItemsOf(form["Items"]), (Texts{"Pear", "Plum", "Quince"}));
            robot::Click(form["More"]);
        });
    form.In("Inner", [&] { robot::ReplaceText(form["Field"], "from inside"); });
    form.Ok("Inner");
    form.Then(
        [&]
        {
            SendMessageA(form["Marks"], LB_SETCURSEL, 1, 0);
            robot::Click(form["Earlier"]);
        });
    EXPECT_EQ(form.Ok().Open("remark#x").text, "final;A. Writer;-two,XXone;from inside");
}

TEST_F(WholeForm, HundredRoundsTakeNothingWithThem)
{
    // The sample library would remember each call.
    form.main.values.emplace_back("Check=ACTION,nasty,EchoText,Send,Take");
    ExpectNoGrowth(
        [&]
        {
            form.Then(
                [&]
                {
                    for (const char* button : {"Fill", "Add", "Delete", "Down", "Check", "More"})
                        robot::Click(form[button]);
                });
            form.Ok("Inner");
            form.Ok().Open("remark#x");
        });
}

TEST_F(WholeForm, HundredFailingRoundsTakeNothingWithThem)
{
    form.main.values.emplace_back("Signed=perhaps");
    ExpectNoGrowth([&] { EXPECT_EQ(form.Message().Open().answer, 0); });

    form.main.values.back() = "Add=ACTION,no-such-library,a,b,c";
    form.dialogs["Inner"].values = {"broken"};
    ExpectNoGrowth(
        [&]
        {
            form.Then([&] { robot::Click(form["Add"]); });
            form.Message();
            form.Then([&] { robot::Click(form["More"]); });
            form.Message();
            form.Cancel().Open("remark#x");
        });
}
