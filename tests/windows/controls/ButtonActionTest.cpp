#include "Form.h"

#include <gtest/gtest.h>

namespace
{

class ButtonAction : public testing::Test
{
protected:
    ButtonAction()
    {
        form.main.layout = {"PushButton Go", "TextBox Edit", "ListBox List"};
        form.main.values = {"List=ONE,one", "List=TWO,two", "List=THREE,three"};
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}, {"THREE", "Third"}, {"LATER", "Later"}};
    }

    void Action(const std::string& statement) { form.main.values.push_back("Go=" + statement); }
    void Click()
    {
        form.Then([this] { robot::Click(form["Go"]); });
    }
    void Look(Form::Step step) { form.Then(std::move(step)); }
    Form::Outcome Open() { return form.Ok().Open(); }
    Texts Items() const { return robot::ItemsOf(form["List"]); }
    std::string Caption() const { return robot::TextOf(form["Go"]); }

    Form form;
};

} // namespace

TEST_F(ButtonAction, TogglesItsTargetAndTheCaptions)
{
    static const struct
    {
        const char* statement;
        bool isHidden;
        bool isDisabled;
        const char* caption;
    } cases[] = {
        {"VISIBLE,Edit,LATER", true, false, "Later"},
        {"ACTIVE,Edit,LATER", false, true, "Later"},
        {"VISIBLE,Edit", true, false, "Go"},
        {"VISIBLE,Edit,NOWHERE", true, false, "no value present"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.statement);
        form.main.values = {std::string("Go=") + c.statement};
        for (const bool isToggled : {false, true, false, true})
        {
            Look(
                [this, c, isToggled]
                {
                    EXPECT_EQ(IsWindowVisible(form["Edit"]) == FALSE, isToggled && c.isHidden);
                    EXPECT_EQ(IsWindowEnabled(form["Edit"]) == FALSE, isToggled && c.isDisabled);
                    EXPECT_EQ(Caption(), isToggled ? c.caption : "Go");
                });
            Click();
        }
        EXPECT_EQ(Open().answer, 1);
    }
}

TEST_F(ButtonAction, TheCaptionTogglesAlsoWithoutATarget)
{
    for (const char* action : {"VISIBLE,Nobody,LATER", "ACTIVE,Nobody,LATER"})
    {
        SCOPED_TRACE(action);
        Action(action);
        for (const char* caption : {"Later", "Go", "Later"})
        {
            Click();
            Look([this, caption] { EXPECT_EQ(Caption(), caption); });
        }
        EXPECT_EQ(Open().messages, Texts{});
    }
}

TEST_F(ButtonAction, DoesNothingToOtherControlsAndTellsNothing)
{
    for (const char* action : {"ADD,Nobody,List", "ADD,List,Nobody", "ADD,Edit,Nobody", "DELETE,Edit", "DELETE,Nobody",
                               "UP,Edit", "DOWN,Edit", "UP,Nobody", "DOWN,Nobody", "FILL,Go", "FILL,Nobody"})
    {
        SCOPED_TRACE(action);
        Action(action);
        Click();
        Look(
            [&]
            {
                EXPECT_EQ(Items(), (Texts{"First", "Second", "Third"}));
                EXPECT_EQ(GetFocus(), form["Go"]);
            });
        EXPECT_EQ(Open().messages, Texts{});
    }
}

TEST_F(ButtonAction, ACaptionThatARuleHasChangedGivesWayToTheAlternateText)
{
    Action("VISIBLE,Edit,LATER");
    Click();
    Look([&] { SetWindowTextA(form["Go"], "other"); });
    Click();
    Look([&] { EXPECT_EQ(Caption(), "Later"); });
    Open();
}

TEST_F(ButtonAction, AddTakesTheShownTextOfItsSource)
{
    form.main.layout.emplace_back("ListBox Target");
    Action("ADD,List,Target");
    Look([&] { robot::SelectItem(form["List"], 1); });
    Click();
    Look([&] { EXPECT_EQ(robot::ItemsOf(form["Target"]), (Texts{"TWO"})); });
    form.main.output = {"(\"%s\", Target)"};
    EXPECT_EQ(Open().text, "TWO");
}

TEST_F(ButtonAction, AddTakesFirstAndLastValue)
{
    form.main.layout.emplace_back("ListBox Target");
    Action("ADD,List,Edit,Target");
    Click();
    Look([&] { EXPECT_EQ(robot::ItemsOf(form["Target"]), (Texts{"ONE"})); });
    Open();
}

TEST_F(ButtonAction, AddWithOneValueAddsToItsSource)
{
    Action("ADD,List");
    Click();
    Look([&] { EXPECT_EQ(Items(), (Texts{"First", "Second", "Third", "ONE"})); });
    Open();
}

TEST_F(ButtonAction, AddDoesNothingWhenNothingIsSelected)
{
    form.main.layout.emplace_back("ListBox Target");
    Action("ADD,List,Target");
    Look([&] { robot::SelectItem(form["List"], -1); });
    Click();
    Look(
        [&]
        {
            EXPECT_EQ(robot::ItemsOf(form["Target"]), Texts{});
            EXPECT_EQ(GetFocus(), form["List"]);
        });
    Open();
}

TEST_F(ButtonAction, DeleteTakesTheSelectedItemAndKeepsTheFocusWhileItemsAreLeft)
{
    Action("DELETE,List");
    Click();
    Look(
        [&]
        {
            EXPECT_EQ(Items(), (Texts{"Second", "Third"}));
            EXPECT_EQ(GetFocus(), form["Go"]);
        });
    Open();
}

TEST_F(ButtonAction, DeletingTheLastItemMovesTheFocusToTheControlAfterTheButton)
{
    form.main.values = {"List=ONE,one"};
    Action("DELETE,List");
    Click();
    Look(
        [&]
        {
            EXPECT_EQ(Items(), Texts{});
            EXPECT_EQ(GetFocus(), form["Edit"]);
        });
    EXPECT_EQ(Open().messages, Texts{});
}

TEST_F(ButtonAction, DeletingTheLastItemMovesTheFocusToAButtonOfAnyKind)
{
    for (const char* type : {"CheckBox", "OptionButton", "PushButton"})
    {
        SCOPED_TRACE(type);
        form.main.layout = {"ListBox List", "PushButton Go", std::string(type) + " Next"};
        form.main.values = {"List=ONE,one"};
        Action("DELETE,List");
        Click();
        Look([&] { EXPECT_EQ(GetFocus(), form["Next"]); });
        Open();
    }
}

TEST_F(ButtonAction, DeletingTheLastItemFromTheLastControlRaisesTheInvalidArgument)
{
    form.main.layout = {"TextBox Edit", "ListBox List", "PushButton Go"};
    form.main.values = {"List=ONE,one"};
    form.main.hasButtons = false;
    Action("DELETE,List");
    Click();
    form.Message();
    Look([&] { EXPECT_EQ(Items(), Texts{}); });
    EXPECT_EQ(form.Cancel().Open().messages, (Texts{invalidArgument}));
}

TEST_F(ButtonAction, ActionWithAMissingLibraryRaises233)
{
    Action("ACTION,no-such-library,Function,Send,Take");
    Click();
    form.Message();
    EXPECT_EQ(Open().messages, (Texts{"238\n233 'no-such-library'"}));
}

TEST_F(ButtonAction, ActionWithAMissingLibraryOfALongNameTellsItsBeginning)
{
    Action("ACTION," + std::string(270, 'x') + ",Function,Send,Take");
    Click();
    form.Message();
    const Texts messages = Open().messages;
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].starts_with("238\n233 'xxxxx")) << messages[0];
}

TEST_F(ButtonAction, ActionWithAMissingFunctionRaises232AndKeepsTheWaitCursor)
{
    Action("ACTION,nasty,NoSuchFunction,Send,Take");
    Click();
    form.Message();
    Look([&] { EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_WAIT)); });
    EXPECT_EQ(Open().messages, (Texts{"238 ''\n232 ''"}));
}

TEST_F(ButtonAction, ActionWithTooFewValuesRaisesTheInvalidArgumentBeforeItLoadsAnything)
{
    Action("ACTION,no-such-library,Function,Send");
    Click();
    form.Message();
    EXPECT_EQ(Open().messages, (Texts{invalidArgument}));
}

TEST_F(ButtonAction, ActionDiscardsTheAnswerOfAnyOtherFunction)
{
    for (const char* function : {"EchoText", "FullText", "SilentText"})
    {
        SCOPED_TRACE(function);
        form.main.values = {"Edit=kept"};
        form.main.output = {"(\"%s\", Edit)", "$OUTPUT, Send", "(\"%s\", Edit)"};
        form.main.input = {"$INPUT, Take", InputTo("Edit").front()};
        Action(std::string("ACTION,nasty,") + function + ",Send,Take");
        Click();
        const Form::Outcome outcome = Open();
        EXPECT_EQ(outcome.text, "kept");
        EXPECT_EQ(outcome.messages, Texts{});
    }
}

TEST_F(ButtonAction, ActionWithoutAnOutputRuleCallsNothing)
{
    Action("ACTION,lytdata,Remember,Nothing,Take");
    Click();
    form.main.layout.emplace_back("ListBox Seen");
    form.main.values.emplace_back("Seen=FILLEDBY,lytdata,OpenList,NextItem,Which");
    form.main.output = {"(\"done\")", "$OUTPUT, Which", "(\"remembered\")"};
    form.main.layout.emplace_back("PushButton Fill");
    form.main.values.emplace_back("Fill=FILL,Seen");
    Look([&] { robot::Click(form["Fill"]); });
    Look([&] { EXPECT_EQ(robot::ItemsOf(form["Seen"]), Texts{}); });
    EXPECT_EQ(Open().messages, Texts{});
}

TEST_F(ButtonAction, ActionHandsTheComposedTextToTheFunction)
{
    form.main.values = {"Edit=first text", "Seen=FILLEDBY,lytdata,OpenList,NextItem,Which", "Fill=FILL,Seen"};
    form.main.layout.insert(form.main.layout.end(), {"ListBox Seen", "PushButton Fill"});
    form.main.output = {"(\"done\")", "$OUTPUT, Which", "(\"remembered\")", "$OUTPUT, Send", "(\"<%s>\", Edit)"};
    Action("ACTION,lytdata,Remember,Send,Take");
    Click();
    Look([&] { robot::Click(form["Fill"]); });
    Look([&] { EXPECT_EQ(robot::ItemsOf(form["Seen"]), (Texts{"<first text>"})); });
    EXPECT_EQ(Open().messages, Texts{});
}
