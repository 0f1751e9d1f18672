// What comes out of a library that is there.
#include "DataLibraryFixture.h"

namespace
{

class LibraryFill : public DataLibrary
{
};

// Runs once for each kind of list.
class EachKind : public DataLibrary, public testing::WithParamInterface<std::string>
{
protected:
    const std::string& kind = GetParam();
};

INSTANTIATE_TEST_SUITE_P(LibraryFill, EachKind, testing::ValuesIn(classes));

} // namespace

TEST_P(EachKind, AMissingFunctionEmptiesTheListInSilence)
{
    for (const char* functions : {"NoStart,NextThree", "Open,NoNext", "Open", "\"\",\"\""})
    {
        SCOPED_TRACE(functions);
        List(kind, std::string("nasty,") + functions);
        ClickFill();
        ExpectItems({});
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_P(EachKind, TheStartFunctionIsCalledBeforeTheNextFunctionIsLookedUp)
{
    List(kind, "nasty,Open,NoNext,Rule");
    form.main.layout.insert(form.main.layout.end(), {kind + " Second", "PushButton FillSecond"});
    form.main.values.insert(form.main.values.end(),
                            {"Second=FILLEDBY,nasty,OpenAgain,NextEcho", "FillSecond=FILL,Second"});
    form.main.output = {"(\"done\")", "$OUTPUT, Rule", "(\"from " + kind + "\")"};
    ClickFill();
    form.Then([&] { robot::Click(form["FillSecond"]); });
    form.Then([&] { EXPECT_EQ(robot::ItemsOf(form["Second"]), Texts{"<from " + kind + ">"}); });
    form.Ok().Open();
}

TEST_P(EachKind, AListingWithoutItemsLeavesTheListEmptyAndUnselected)
{
    List(kind, "nasty,Open,NextNone");
    ClickFill();
    ExpectItems({});
    ExpectSelected(-1);
    form.Ok().Open();
}

TEST_F(LibraryFill, AListThatNothingWasDeliveredToPullsTheFocusWhenItsValueIsRead)
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

TEST_P(EachKind, AListingThatFailsLeavesItsItemsSelectedSoThatTheNextFillEmptiesThem)
{
    List(kind, "nasty,Open,NextFailing");
    const int selected = kind == "CheckListBox" ? 1 : 0;
    for (int fill = 0; fill < 2; ++fill)
    {
        if (fill == 0)
            ClickFill();
        else
            form.Then([this] { robot::Click(form["Fill"]); });
        form.Message();
        ExpectItems({"item 0", "item 1"});
        ExpectSelected(selected);
    }
    EXPECT_EQ(form.Ok().Open().messages,
              Texts(2, "The library 'nasty' failed in its function 'NextFailing': no third item"));
}

TEST_P(EachKind, BuffersFilledToTheLastByteEndThere)
{
    List(kind, "nasty,Open,NextFull");
    form.main.output = {"(\"%s\", List)"};
    ClickFill();
    ExpectItems({std::string(255, 'D')});
    EXPECT_EQ(form.Ok().Open().text, std::string(255, 'V'));
}

TEST_F(LibraryFill, ANextFunctionThatLeavesABufferAloneRepeatsTheTextBefore)
{
    List("ListBox", "nasty,Open,NextLazy");
    ClickFill();
    ExpectItems({"", "one", "one", "two"});
    form.main.output = {"(\"%s\", List)"};
    form.Then([&] { robot::SelectItem(form["List"], 3); });
    EXPECT_EQ(form.Ok().Open().text, "one-value");
}

TEST_P(EachKind, TheParameterIsComposedByItsRule)
{
    List(kind, "nasty,Open,NextEcho,Rule");
    form.main.values.emplace_back("Edit=text");
    form.main.output = {"(\"%s\", List)", "$OUTPUT, Rule", "(\"[%s]\", Edit)"};
    ClickFill();
    ExpectItems({"<[text]>"});
    EXPECT_EQ(form.Ok().Open().text, "255/255");
}

TEST_P(EachKind, WithoutARuleTheParameterIsEmpty)
{
    List(kind, "nasty,Open,NextEcho");
    ClickFill();
    ExpectItems({"<>"});
    form.Ok().Open();
}

TEST_P(EachKind, ARuleThatIsMissingOrDoesNotApplyEndsTheFillExceptOfACheckList)
{
    for (const char* rule : {"Missing", "Refusing"})
    {
        SCOPED_TRACE(rule);
        List(kind, std::string("nasty,Open,NextEcho,") + rule);
        form.main.output = {"(\"x\")", "$OUTPUT, Refusing", "Edit(never) = (\"y\")"};
        ClickFill();
        ExpectItems(kind == "CheckListBox" ? Texts{"<>"} : Texts{});
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_F(LibraryFill, AListWithoutASelectionKeepsItsItems)
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

TEST_F(LibraryFill, EveryItemOfACheckListStartsChecked)
{
    List("CheckListBox", "nasty,Open,NextThree");
    form.main.output = {"(\"%s\", List(\"/\"))"};
    ClickFill();
    EXPECT_EQ(form.Ok().Open().text, "Xred-value/Xgreen-value/Xblue-value");
}

TEST_F(LibraryFill, AFifthValueIsAFirstItemOfKeyAndValue)
{
    static const struct
    {
        const char* item;
        const char* shown;
        const char* value;
    } cases[] = {
        {"HEAD/head", "Head", "head"},
        {"HEAD", "Head", "HEAD"},
        {"HEAD/", "Head", ""},
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

TEST_F(LibraryFill, AFifthValueOfTwoSlashesIsCutAtTheFirst)
{
    List("ComboBox", "nasty,Open,NextThree,\"\",HEAD/a/b");
    form.main.output = {"(\"%s\", List)"};
    ClickFill();
    ExpectItems({"Head", "red", "green", "blue"});
    EXPECT_EQ(form.Ok().Open().text, "a/b");
}

TEST_F(LibraryFill, AFifthValueThatBeginsWithASlashIsNoFirstItem)
{
    List("ComboBox", "nasty,Open,NextThree,\"\",/x");
    ClickFill();
    ExpectItems({"red", "green", "blue"});
    form.Ok().Open();
}

TEST_F(LibraryFill, WithAFirstItemAndNothingDeliveredThatOneItemIsThere)
{
    List("ComboBox", "nasty,Open,NextNone,\"\",HEAD/head");
    ClickFill();
    ExpectItems({"Head"});
    ExpectSelected(0);
    form.Ok().Open();
}

TEST_F(LibraryFill, AMissingNextFunctionAddsNoFirstItem)
{
    List("ComboBox", "nasty,Open,NoNext,\"\",HEAD/head");
    ClickFill();
    ExpectItems({});
    form.Ok().Open();
}

TEST_F(LibraryFill, AllValuesOfAFilledComboBoxAreSentinels)
{
    List("ComboBox", "nasty,Open,NextThree");
    form.texts["green"] = "Grass";
    form.main.output = {"(\"%s\", List(\"/\"))"};
    ClickFill();
    EXPECT_EQ(form.Ok().Open().text, "no value present/Grass/no value present");
}

TEST_F(LibraryFill, TheWordFillAsAValueFillsAComboBox)
{
    List("ComboBox", "nasty,Open,NextThree");
    form.main.input = InputTo("List");
    ExpectItems({"red", "green", "blue"});
    form.Ok().Open("FILL");
}

TEST_P(EachKind, AnyOtherActionWordFills)
{
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

TEST_P(EachKind, TheInputCanFill)
{
    List(kind, "nasty,Open,NextThree");
    form.main.input = InputTo("List(FILL)");
    ExpectItems(kind == "CheckListBox" ? Texts{"red", "green", "blue", "Own"} : Texts{"red", "green", "blue"});
    form.Ok().Open("x");
}

TEST_P(EachKind, TakesTenThousandItemsAgainAndAgain)
{
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

TEST_F(LibraryFill, TheArrowIsBackAfterAFill)
{
    List("ListBox", "nasty,Open,NextThree");
    ClickFill();
    form.Then([&] { EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW)); });
    form.Ok().Open();
}
