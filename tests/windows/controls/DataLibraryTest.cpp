// A class keeps the first library that loads for the life of the process, so these tests run in their order.
#include "Form.h"

#include <gtest/gtest.h>

namespace
{

const Texts classes = {"ListBox", "CheckListBox", "ComboBox", "DropListBox"};

// A list of each kind with one item of its own, filled by a button.
class DataLibrary : public testing::Test
{
protected:
    DataLibrary() { form.texts = {{"OWN", "Own"}, {"HEAD", "Head"}}; }

    // A form with one list of the kind, selected, and a button that fills it.
    void List(const std::string& kind, const std::string& source)
    {
        form.main.layout = {kind + " List", "PushButton Fill", "TextBox Edit"};
        form.main.values = {"List=OWN,own", "List=FILLEDBY," + source, "Fill=FILL,List"};
    }
    void ClickFill()
    {
        form.Then(
            [this]
            {
                robot::SelectItem(form["List"], 0);
                robot::Click(form["Fill"]);
            });
    }
    void ExpectItems(const Texts& items)
    {
        form.Then([this, items] { EXPECT_EQ(robot::ItemsOf(form["List"]), items); });
    }
    void ExpectSelected(int index)
    {
        form.Then([this, index] { EXPECT_EQ(robot::SelectedItemOf(form["List"]), index); });
    }

    Form form;
};

bool IsLoaded(const char* library)
{
    return GetModuleHandleA(library) != nullptr;
}

} // namespace

TEST_F(DataLibrary, AnActionLoadsItsLibraryTwiceAndFreesItOnce)
{
    ASSERT_FALSE(IsLoaded("lytdata.dll"));
    form.main.layout = {"PushButton Go"};
    form.main.values = {"Go=ACTION,lytdata,Remember,Send,Take"};
    form.Then([&] { robot::Click(form["Go"]); });
    form.Ok().Open();
    ASSERT_TRUE(IsLoaded("lytdata.dll"));
    FreeLibrary(GetModuleHandleA("lytdata.dll"));
    EXPECT_FALSE(IsLoaded("lytdata.dll"));
}

TEST_F(DataLibrary, AMissingLibraryEmptiesTheListInSilence)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "no-such-library,Open,NextThree");
        ClickFill();
        ExpectItems({});
        ExpectSelected(-1);
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_F(DataLibrary, AFileThatIsNoLibraryEmptiesTheListInSilence)
{
    form.Folder().Write("wrong.dll", "MZ, and nothing behind it");
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "\"" + form.Folder().Path() + "\\wrong.dll\",Open,NextThree");
        ClickFill();
        ExpectItems({});
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_F(DataLibrary, AnEmptyLibraryNameIs251AndEndsAtTheFailedLoad)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "\"\",Open,NextThree");
        ClickFill();
        form.Message();
        ExpectItems({});
        EXPECT_EQ(form.Ok().Open().messages, (Texts{"251 'List'"}));
    }
}

TEST_F(DataLibrary, AListWithoutAStatementIs251Too)
{
    form.main.layout = {"ListBox List", "PushButton Fill"};
    form.main.values = {"Fill=FILL,List"};
    form.Then([&] { robot::Click(form["Fill"]); });
    EXPECT_EQ(form.Message().Ok().Open().messages, (Texts{"251 'List'"}));
}

TEST_F(DataLibrary, AFailedFillReadsAnEmptyValueAndPullsTheFocus)
{
    List("ListBox", "no-such-library,Open,NextThree");
    form.main.layout.emplace_back("Text Label");
    form.main.rules = {"Label/VISIBLE=List(own)"};
    ClickFill();
    form.Then([&] { EXPECT_EQ(GetFocus(), form["List"]); });
    form.Ok().Open();
}

TEST_F(DataLibrary, FillsFromTheFirstLibraryThatLoads)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextThree");
        ClickFill();
        ExpectItems({"red", "green", "blue"});
        ExpectSelected(kind == "CheckListBox" ? 2 : 0);
        form.main.output = {"(\"%s\", List)"};
        EXPECT_EQ(form.Ok().Open().text, kind == "CheckListBox" ? "blue-value" : "red-value");
    }
    EXPECT_TRUE(IsLoaded("nasty.dll"));
}

TEST_F(DataLibrary, ALaterLibraryNameIsNotLookedAt)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "no-such-library,Open,NextThree");
        ClickFill();
        ExpectItems({"red", "green", "blue"});
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
        // lytdata is there, but the class has its library.
        List(kind, "lytdata,OpenList,NextItem");
        ClickFill();
        ExpectItems({});
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_F(DataLibrary, AnEmptyNameIs251AndTheFillGoesOnWithTheLibraryThatIsThere)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "\"\",Open,NextThree");
        ClickFill();
        form.Message();
        ExpectItems({"red", "green", "blue"});
        EXPECT_EQ(form.Ok().Open().messages, (Texts{"251 'List'"}));
    }
}

TEST_F(DataLibrary, EditsHaveALibraryOfTheirOwn)
{
    form.main.layout = {"TextBox Edit"};
    form.main.values = {"Edit=FILLEDBY,no-such-library,EchoText", "Edit=FILL"};
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); }).Ok().Open();
    form.main.values = {"Edit=FILLEDBY,nasty,EchoText", "Edit=FILL"};
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), "<> 255"); }).Ok().Open();
    form.main.values = {"Edit=FILLEDBY,nasty,FullText", "Edit=FILL"};
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), std::string(255, 'T')); }).Ok().Open();
}

TEST_F(DataLibrary, AMissingFunctionEmptiesTheListInSilence)
{
    for (const char* functions : {"NoStart,NextThree", "Open,NoNext", "Open", "\"\",\"\""})
    {
        for (const std::string& kind : classes)
        {
            SCOPED_TRACE(kind + functions);
            List(kind, std::string("nasty,") + functions);
            ClickFill();
            ExpectItems({});
            EXPECT_EQ(form.Ok().Open().messages, Texts{});
        }
    }
}

TEST_F(DataLibrary, AListingWithoutItemsLeavesTheListEmptyAndUnselected)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextNone");
        ClickFill();
        ExpectItems({});
        ExpectSelected(-1);
        form.Ok().Open();
    }
}

TEST_F(DataLibrary, AListThatNothingWasDeliveredToPullsTheFocusWhenItsValueIsRead)
{
    for (const char* kind : {"ListBox", "CheckListBox"})
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextNone");
        form.main.layout.emplace_back("Text Label");
        form.main.rules = {"Label/VISIBLE=List(own)"};
        ClickFill();
        form.Then([&] { EXPECT_EQ(GetFocus(), form["List"]); });
        form.Ok().Open();
    }
}

TEST_F(DataLibrary, BuffersFilledToTheLastByteEndThere)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextFull");
        form.main.output = {"(\"%s\", List)"};
        ClickFill();
        ExpectItems({std::string(255, 'D')});
        EXPECT_EQ(form.Ok().Open().text, std::string(255, 'V'));
    }
}

TEST_F(DataLibrary, ANextFunctionThatLeavesABufferAloneRepeatsTheTextBefore)
{
    List("ListBox", "nasty,Open,NextLazy");
    ClickFill();
    ExpectItems({"", "one", "one", "two"});
    form.main.output = {"(\"%s\", List)"};
    form.Then([&] { robot::SelectItem(form["List"], 3); });
    EXPECT_EQ(form.Ok().Open().text, "one-value");
}

TEST_F(DataLibrary, TheParameterIsComposedByItsRule)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextEcho,Rule");
        form.main.values.emplace_back("Edit=text");
        form.main.output = {"(\"%s\", List)", "$OUTPUT, Rule", "(\"[%s]\", Edit)"};
        ClickFill();
        ExpectItems({"<[text]>"});
        EXPECT_EQ(form.Ok().Open().text, "255/255");
    }
}

TEST_F(DataLibrary, WithoutARuleTheParameterIsEmpty)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextEcho");
        ClickFill();
        ExpectItems({"<>"});
        form.Ok().Open();
    }
}

TEST_F(DataLibrary, ARuleThatIsMissingOrDoesNotApplyEndsTheFillExceptOfACheckList)
{
    for (const char* rule : {"Missing", "Refusing"})
    {
        for (const std::string& kind : classes)
        {
            SCOPED_TRACE(kind + rule);
            List(kind, std::string("nasty,Open,NextEcho,") + rule);
            form.main.output = {"(\"x\")", "$OUTPUT, Refusing", "Edit(never) = (\"y\")"};
            ClickFill();
            ExpectItems(kind == "CheckListBox" ? Texts{"<>"} : Texts{});
            EXPECT_EQ(form.Ok().Open().messages, Texts{});
        }
    }
}

TEST_F(DataLibrary, AListWithoutASelectionKeepsItsItems)
{
    List("ListBox", "nasty,Open,NextThree");
    form.Then(
        [&]
        {
            robot::SelectItem(form["List"], -1);
            robot::Click(form["Fill"]);
        });
    ExpectItems({"Own", "red", "green", "blue"});
    form.Ok().Open();

    List("CheckListBox", "nasty,Open,NextThree");
    form.Then([&] { robot::Click(form["Fill"]); });
    ExpectItems({"red", "green", "blue", "Own"});
    form.Ok().Open();
}

TEST_F(DataLibrary, EveryItemOfACheckListStartsChecked)
{
    List("CheckListBox", "nasty,Open,NextThree");
    form.main.output = {"(\"%s\", List(\"/\"))"};
    ClickFill();
    EXPECT_EQ(form.Ok().Open().text, "Xred-value/Xgreen-value/Xblue-value");
}

TEST_F(DataLibrary, AFifthValueIsAFirstItemOfKeyAndValue)
{
    static const struct
    {
        const char* item;
        const char* shown;
        const char* value;
    } cases[] = {
        {"HEAD/head", "Head", "head"},       {"HEAD", "Head", "HEAD"},
        {"HEAD/a/b", "Head", "a/b"},         {"HEAD/", "Head", ""},
        {"NONE/n", "no value present", "n"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.item);
        List("DropListBox", std::string("nasty,Open,NextThree,\"\",") + c.item);
        form.main.output = {"(\"<%s>\", List)"};
        ClickFill();
        ExpectItems({c.shown, "red", "green", "blue"});
        ExpectSelected(0);
        EXPECT_EQ(form.Ok().Open().text, std::string("<") + c.value + ">");
    }
}

TEST_F(DataLibrary, AFifthValueOfTwoSlashesIsCutAtTheFirst)
{
    List("ComboBox", "nasty,Open,NextThree,\"\",HEAD/a/b");
    form.main.output = {"(\"%s\", List)"};
    ClickFill();
    ExpectItems({"Head", "red", "green", "blue"});
    EXPECT_EQ(form.Ok().Open().text, "a/b");
}

TEST_F(DataLibrary, AFifthValueThatBeginsWithASlashIsNoFirstItem)
{
    List("ComboBox", "nasty,Open,NextThree,\"\",/x");
    ClickFill();
    ExpectItems({"red", "green", "blue"});
    form.Ok().Open();
}

TEST_F(DataLibrary, WithAFirstItemAndNothingDeliveredThatOneItemIsThere)
{
    List("ComboBox", "nasty,Open,NextNone,\"\",HEAD/head");
    ClickFill();
    ExpectItems({"Head"});
    ExpectSelected(0);
    form.Ok().Open();
}

TEST_F(DataLibrary, AMissingNextFunctionAddsNoFirstItem)
{
    List("ComboBox", "nasty,Open,NoNext,\"\",HEAD/head");
    ClickFill();
    ExpectItems({});
    form.Ok().Open();
}

TEST_F(DataLibrary, AllValuesOfAFilledComboBoxAreSentinels)
{
    List("ComboBox", "nasty,Open,NextThree");
    form.texts["green"] = "Grass";
    form.main.output = {"(\"%s\", List(\"/\"))"};
    ClickFill();
    EXPECT_EQ(form.Ok().Open().text, "no value present/Grass/no value present");
}

TEST_F(DataLibrary, TheWordFillAsAValueFillsAComboBox)
{
    List("ComboBox", "nasty,Open,NextThree");
    form.main.input = InputTo("List");
    ExpectItems({"red", "green", "blue"});
    form.Ok().Open("FILL");
}

TEST_F(DataLibrary, AnyOtherActionWordFills)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextThree");
        form.main.rules = {"List/FILL=Edit"};
        form.Then(
            [&]
            {
                robot::SelectItem(form["List"], 0);
                robot::ReplaceText(form["Edit"], "x");
            });
        ExpectItems({"red", "green", "blue"});
        form.Ok().Open();
    }
}

TEST_F(DataLibrary, TheInputCanFill)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextThree");
        form.main.input = InputTo("List(FILL)");
        ExpectItems(kind == "CheckListBox" ? Texts{"red", "green", "blue", "Own"} : Texts{"red", "green", "blue"});
        form.Ok().Open("x");
    }
}

TEST_F(DataLibrary, TakesTenThousandItemsAgainAndAgain)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextMany,Rule");
        form.main.output = {"(\"%s\", List)", "$OUTPUT, Rule", "(\"10000\")"};
        for (int round = 0; round < 3; ++round)
            ClickFill();
        form.Then(
            [&]
            {
                const Texts items = robot::ItemsOf(form["List"]);
                ASSERT_EQ(items.size(), 10000U);
                EXPECT_EQ(items.back(), "item 9999");
                robot::SelectItem(form["List"], 9999);
            });
        EXPECT_EQ(form.Ok().Open().text, "item 9999-value");
    }
}

TEST_F(DataLibrary, TheArrowIsBackAfterAFill)
{
    List("ListBox", "nasty,Open,NextThree");
    ClickFill();
    form.Then([&] { EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW)); });
    form.Ok().Open();
}
