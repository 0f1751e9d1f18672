#include "Form.h"

#include "support/OtherEndings.h"

#include <gtest/gtest.h>

namespace
{

// An outer field whose text goes through a nested dialog and back.
class NestedDialog : public testing::Test
{
protected:
    NestedDialog()
    {
        form.main.layout = {"PushButton Go", "TextBox Edit"};
        form.main.values = {"Edit=outer", "Go=DIALOG,Inner,Take,Send"};
        form.main.input = {"$INPUT, Take", InputTo("Edit").front()};
        form.main.output = {"(\"%s\", Edit)", "$OUTPUT, Send", "(\"<%s>\", Edit)"};
        form.dialogs["Inner"] = {
            .layout = {"TextBox Field"}, .input = InputTo("Field"), .output = {"(\"%s!\", Field)"}};
    }

    void Action(const std::string& statement) { form.main.values.back() = "Go=" + statement; }
    void Click()
    {
        form.Then([this] { robot::Click(form["Go"]); });
    }

    Form form;
};

} // namespace

TEST_F(NestedDialog, TextTravelsOutAndBack)
{
    Click();
    form.In("Inner",
            [&]
            {
                EXPECT_EQ(robot::TextOf(form["Field"]), "<outer>");
                robot::ReplaceText(form["Field"], "inner");
            });
    form.Ok("Inner");
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), "inner!"); });
    EXPECT_EQ(form.Ok().Open().text, "inner!");
}

TEST_F(NestedDialog, CancelChangesNothing)
{
    Click();
    form.Cancel("Inner");
    EXPECT_EQ(form.Ok().Open().text, "outer");
}

TEST_F(NestedDialog, AnyEndOtherThanItsOwnOkChangesNothing)
{
    for (const OtherEnding& ending : otherEndings)
    {
        SCOPED_TRACE(ending.name);
        Click();
        form.In("Inner", [&] { ending.act(robot::ActiveDialog()); });
        // The quit message goes on to the outer dialog.
        if (!ending.leavesQuit)
            form.Ok();
        const Form::Outcome outcome = form.Open();
        EXPECT_EQ(outcome.answer, ending.leavesQuit ? 0 : 1);
        EXPECT_EQ(outcome.text, ending.leavesQuit ? "" : "outer");
        EXPECT_EQ(TakeQuit(), ending.leavesQuit);
    }
}

TEST_F(NestedDialog, AnOutputRuleThatComposesNothingDoesNotOpenIt)
{
    form.main.values.erase(form.main.values.begin());
    form.main.output.back() = "(\"%s\", Edit)";
    Click();
    EXPECT_EQ(form.Ok().Open().messages, Texts{});
}

TEST_F(NestedDialog, RefusingToOpenRunsNoRulesAndKeepsTheWaitCursor)
{
    form.main.layout = {"PushButton Go", "TextBox Edit", "ListBox List", "CheckListBox Quiet"};
    form.main.values = {"List=ONE,one", "Edit=kept", "Quiet=DBLCLICK,Go", "Quiet=a,a", "Go=DIALOG,Inner,Take,Nothing"};
    form.main.rules = {"Edit/CLEAR=List"};
    // A check list that has the focus sends no command, so nothing but the click can run the rules.
    const auto doubleClick = [&]
    {
        SendMessageA(form["List"], LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        robot::DoubleClickAt(form["Quiet"], 60, 5);
    };
    const auto focus = [&] { robot::Focus(form["Quiet"]); };
    form.Then(focus).Then(doubleClick);
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["Edit"]), "kept");
            EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_WAIT));
        });
    form.Ok().Open();

    form.main.values.back() = "Go=REJECT,x";
    form.Then(focus).Then(doubleClick);
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["Edit"]), "");
            EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
        });
    form.Ok().Open();
}

TEST_F(NestedDialog, AnEmptyLastValueOpensItWithoutInput)
{
    Action("DIALOG,Inner,Take,\"\"");
    Click();
    form.In("Inner", [&] { EXPECT_EQ(robot::TextOf(form["Field"]), ""); });
    form.Ok("Inner");
    EXPECT_EQ(form.Ok().Open().text, "!");
}

TEST_F(NestedDialog, TheResultOfTheOneBeforeIsNoInputOfTheNext)
{
    form.main.layout.insert(form.main.layout.end(), {"PushButton Refused", "PushButton Empty"});
    form.main.values.insert(form.main.values.end(),
                            {"Refused=DIALOG,Inner,Take,Nothing", "Empty=DIALOG,Inner,Take,\"\""});
    Click();
    form.Ok("Inner");
    // The second button composes no input, and so opens nothing.
    form.Then([&] { robot::Click(form["Refused"]); });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), "<outer>!"); });
    form.Then([&] { robot::Click(form["Empty"]); });
    form.In("Inner", [&] { EXPECT_EQ(robot::TextOf(form["Field"]), ""); });
    form.Ok("Inner");
    EXPECT_EQ(form.Ok().Open().text, "!");
}

TEST_F(NestedDialog, ItsResultMakesALaterActionScanAnEmptyAnswer)
{
    form.main.layout.emplace_back("PushButton Act");
    form.main.values.insert(form.main.values.begin(), "Act=ACTION,nasty,EchoText,Send,Answer");
    // Taken for an empty answer only.
    form.main.input.insert(form.main.input.end(), {"$INPUT, Answer", InputTo("(\"\"), Edit = empty").front()});
    form.Then([&] { robot::Click(form["Act"]); });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), "outer"); });
    Click();
    form.Ok("Inner");
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), "<outer>!"); });
    form.Then([&] { robot::Click(form["Act"]); });
    EXPECT_EQ(form.Ok().Open().text, "empty");
}

TEST_F(NestedDialog, TwoValuesUseOneNameForBothRules)
{
    form.main.input.front() = "$INPUT, Send";
    Action("DIALOG,Inner,Send");
    Click();
    form.In("Inner", [&] { EXPECT_EQ(robot::TextOf(form["Field"]), "<outer>"); });
    form.Ok("Inner");
    EXPECT_EQ(form.Ok().Open().text, "<outer>!");
}

TEST_F(NestedDialog, AResultWithoutASecondValueRaisesTheInvalidArgument)
{
    form.main.output[1] = "$OUTPUT, Inner";
    Action("DIALOG,Inner");
    Click();
    form.Ok("Inner").Message();
    const Form::Outcome outcome = form.Ok().Open();
    EXPECT_EQ(outcome.messages, (Texts{invalidArgument}));
    EXPECT_EQ(outcome.text, "outer");
}

TEST_F(NestedDialog, AnEmptyResultNeedsNoSecondValue)
{
    form.main.output[1] = "$OUTPUT, Inner";
    Action("DIALOG,Inner");
    form.dialogs["Inner"].output = {"(\"%s\", Field)"};
    Click();
    form.In("Inner", [&] { robot::ReplaceText(form["Field"], ""); });
    form.Ok("Inner");
    EXPECT_EQ(form.Ok().Open().messages, Texts{});
}

TEST_F(NestedDialog, AnUnknownInputRuleDropsTheResult)
{
    Action("DIALOG,Inner,Nothing,Send");
    Click();
    form.Ok("Inner");
    EXPECT_EQ(form.Ok().Open().text, "outer");
}

TEST_F(NestedDialog, AMissingDescriptionIsToldAndTheOuterDialogLivesOn)
{
    Action("DIALOG,Missing,Take,Send");
    Click();
    form.Message();
    const Form::Outcome outcome = form.Ok().Open();
    EXPECT_EQ(outcome.messages, (Texts{"207 '" + form.Folder().Path() + "\\Missing.dlg'"}));
    EXPECT_EQ(outcome.text, "outer");
}

TEST_F(NestedDialog, ABrokenDescriptionIsToldAndTheOuterRulesStillRun)
{
    form.dialogs["Inner"].values = {"alone"};
    form.main.layout.emplace_back("TextBox Other");
    form.main.values.insert(form.main.values.begin(), "Other=kept");
    form.main.rules = {"Other/CLEAR=Edit"};
    Click();
    form.Message();
    form.Then([&] { robot::ReplaceText(form["Edit"], "changed"); });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Other"]), ""); });
    EXPECT_EQ(form.Ok().Open().text, "changed");
}

TEST_F(NestedDialog, OneThatNamesItselfOpensLevelByLevel)
{
    form.dialogs["Inner"] = {.layout = {"PushButton Again", "TextBox Field"},
                             .values = {"Again=DIALOG,Inner,Take,Send"},
                             .input = {InputTo("Field").front(), "$INPUT, Take", InputTo("Field").front()},
                             .output = {"(\"%s!\", Field)", "$OUTPUT, Send", "(\"%s+\", Field)"}};
    Click();
    for (int level = 0; level < 3; ++level)
        form.In("Inner", [&] { robot::Click(form["Again"]); });
    form.In("Inner", [&] { EXPECT_EQ(robot::TextOf(form["Field"]), "<outer>+++"); });
    for (int level = 0; level < 4; ++level)
        form.Ok("Inner");
    EXPECT_EQ(form.Ok().Open().text, "<outer>+++!!!!");
}

TEST_F(NestedDialog, TheRulesRunAfterItsResultIsScanned)
{
    form.main.layout.emplace_back("TextBox Other");
    form.main.values.insert(form.main.values.begin(), "Other=kept");
    form.main.rules = {"Other/CLEAR=Edit"};
    Click();
    form.Ok("Inner");
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Other"]), ""); });
    form.Ok().Open();
}

TEST_F(NestedDialog, OpensByTheKeyboardAndGivesTheFocusBack)
{
    form.Then(
        [&]
        {
            robot::Focus(form["Go"]);
            robot::PressKey(VK_SPACE);
        });
    form.In("Inner", [&] { robot::PressKey(VK_ESCAPE); });
    form.Then(
        [&]
        {
            EXPECT_EQ(GetFocus(), form["Go"]);
            robot::PressKey(VK_RETURN);
        });
    form.In("Inner", [&] { robot::PressKey(VK_RETURN); });
    form.Then([&] { EXPECT_EQ(GetFocus(), form["Go"]); });
    EXPECT_EQ(form.Ok().Open().text, "<outer>!");
}

TEST_F(NestedDialog, IsNotOpenedAgainByTheReturnThatConfirmsIt)
{
    Click();
    form.In("Inner", [] { robot::HoldKey(VK_RETURN); });
    form.In("Main", [&] { EXPECT_EQ(GetFocus(), form["Go"]); });
    form.Release(VK_RETURN, [] { EXPECT_EQ(robot::TextOf(robot::ActiveDialog()), "Main"); });
    EXPECT_EQ(form.Ok().Open().text, "<outer>!");
}

TEST_F(NestedDialog, OpensAtEachReturnOnItsButton)
{
    form.Then([&] { robot::Focus(form["Go"]); });
    for (int round = 0; round < 2; ++round)
    {
        form.Then([] { robot::HoldKey(VK_RETURN); });
        form.Release(VK_RETURN, [] {});
        form.In("Inner", [] { robot::HoldKey(VK_RETURN); });
        form.Release(VK_RETURN, [] { EXPECT_EQ(robot::TextOf(robot::ActiveDialog()), "Main"); });
    }
    EXPECT_EQ(form.Ok().Open().text, "<<outer>!>!");
}
