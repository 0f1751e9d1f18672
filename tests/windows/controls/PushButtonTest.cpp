#include "Form.h"

#include <gtest/gtest.h>

namespace
{

// A button that adds an item to a list each time it acts.
class PushButton : public testing::Test
{
protected:
    PushButton()
    {
        form.main.layout = {"PushButton Go", "ListBox Source", "ListBox Target"};
        form.main.values = {"Source=ONE,one", "Go=ADD,Source,Target"};
        form.texts = {{"ONE", "First"}};
    }

    void Send(UINT message, WPARAM wParam = 0) const { SendMessageA(form["Go"], message, wParam, 0); }
    int Actions() const { return static_cast<int>(robot::ItemsOf(form["Target"]).size()); }
    void ExpectActions(int count)
    {
        form.Then([this, count] { EXPECT_EQ(Actions(), count); });
    }

    Form form;
};

} // namespace

TEST_F(PushButton, OnePressOfTheMouseActsOnce)
{
    form.Then([&] { robot::Click(form["Go"]); });
    ExpectActions(1);
    form.Then([&] { robot::Click(form["Go"]); });
    ExpectActions(2);
    form.Ok().Open();
}

TEST_F(PushButton, OnePressOfTheSpaceKeyActsOnce)
{
    form.Then(
        [&]
        {
            robot::Focus(form["Go"]);
            robot::PressKey(VK_SPACE);
        });
    ExpectActions(1);
    form.Then([&] { robot::PressKey(VK_SPACE); });
    ExpectActions(2);
    form.Ok().Open();
}

TEST_F(PushButton, OnePressOfTheReturnKeyActsOnce)
{
    form.Then(
        [&]
        {
            robot::Focus(form["Go"]);
            robot::PressKey(VK_RETURN);
        });
    ExpectActions(1);
    form.Ok().Open();
}

TEST_F(PushButton, ReturnActsOncePerCommandThatReachedTheDialog)
{
    form.Then(
        [&]
        {
            robot::Focus(form["Go"]);
            // A command of any control counts.
            SendMessageA(robot::ActiveDialog(), WM_COMMAND, MAKEWPARAM(0, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(form["Source"]));
            Send(WM_KEYUP, VK_RETURN);
            EXPECT_EQ(Actions(), 1);
            // The key that opened this dialog may come up here: without a command it is not meant for the button.
            Send(WM_KEYUP, VK_RETURN);
            EXPECT_EQ(Actions(), 1);
            SendMessageA(robot::ActiveDialog(), WM_COMMAND, MAKEWPARAM(0, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(form["Source"]));
            Send(WM_KEYUP, VK_RETURN);
            EXPECT_EQ(Actions(), 2);
        });
    form.Ok().Open();
}

TEST_F(PushButton, SpaceNeedsNoEarlierCommand)
{
    form.Then(
        [&]
        {
            Send(WM_KEYUP, VK_RETURN);
            Send(WM_KEYUP, VK_RETURN);
            const int before = Actions();
            Send(WM_KEYUP, VK_SPACE);
            EXPECT_EQ(Actions(), before + 1);
        });
    form.Ok().Open();
}

TEST_F(PushButton, TheReturnThatAnswersAMessageDoesNotActAgain)
{
    // An edit shows no items, so each action tells of that.
    form.main.layout.emplace_back("TextBox Edit");
    form.main.values = {"Go=ADD,Edit,Target", "Edit=text"};
    form.Then([&] { robot::Click(form["Go"]); });
    form.In("lyt64", [] { robot::HoldKey(VK_RETURN); });
    form.Release(VK_RETURN, [] { EXPECT_FALSE(robot::IsMessageBox(robot::ActiveDialog())); });
    form.Ok().Open();
}

TEST_F(PushButton, PassesOverTheReturnUnderWhichItGotTheFocusOnly)
{
    // OK finds nothing to compose, so Return leaves the dialog open.
    form.main.output = {"Source(none) = (\"done\")"};
    form.Then(
        [&]
        {
            robot::Focus(form["Source"]);
            robot::HoldKey(VK_RETURN);
        });
    form.Then([&] { robot::Focus(form["Go"]); });
    form.Then([&] { robot::Focus(form["Source"]); });
    form.Release(VK_RETURN, [&] { robot::Focus(form["Go"]); });
    form.Then([] { robot::HoldKey(VK_RETURN); });
    form.Release(VK_RETURN, [&] { EXPECT_EQ(Actions(), 1); });
    form.Cancel().Open();
}

TEST_F(PushButton, OtherKeysDoNotAct)
{
    form.Then(
        [&]
        {
            Send(WM_KEYUP, 'A');
            Send(WM_KEYUP, VK_TAB);
            EXPECT_EQ(Actions(), 0);
        });
    form.Ok().Open();
}

TEST_F(PushButton, ComingUpWithoutGoingDownDoesNotAct)
{
    form.Then(
        [&]
        {
            Send(BM_SETSTATE, FALSE);
            EXPECT_EQ(Actions(), 0);
            Send(BM_SETSTATE, TRUE);
            EXPECT_EQ(Actions(), 0);
            Send(BM_SETSTATE, FALSE);
            EXPECT_EQ(Actions(), 1);
            Send(BM_SETSTATE, FALSE);
            EXPECT_EQ(Actions(), 1);
        });
    form.Ok().Open();
}

TEST_F(PushButton, ComingUpAfterTheSpaceKeyFindsNothingToDo)
{
    form.Then(
        [&]
        {
            Send(BM_SETSTATE, TRUE);
            Send(WM_KEYUP, VK_SPACE);
            Send(BM_SETSTATE, FALSE);
            EXPECT_EQ(Actions(), 1);
        });
    form.Ok().Open();
}

TEST_F(PushButton, AClickSetsTheArrowArmedOrNot)
{
    form.Then(
        [&]
        {
            SetCursor(LoadCursorA(nullptr, IDC_CROSS));
            Send(BM_SETSTATE, FALSE);
            EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
            SetCursor(LoadCursorA(nullptr, IDC_CROSS));
            Send(BM_SETSTATE, TRUE);
            Send(BM_SETSTATE, FALSE);
            EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
        });
    form.Ok().Open();
}

TEST_F(PushButton, AnUnknownActionRejectAndNoneRunTheRulesOnly)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.rules = {"Edit/CLEAR=Source"};
    for (const char* statement : {"Go=NOTHING,x", "Go=REJECT,x", ""})
    {
        SCOPED_TRACE(statement);
        form.main.values = {"Source=ONE,one", "Edit=kept", statement};
        form.Then(
            [&]
            {
                SendMessageA(form["Source"], LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
                EXPECT_EQ(robot::TextOf(form["Edit"]), "kept");
                Send(BM_SETSTATE, TRUE);
                Send(BM_SETSTATE, FALSE);
                EXPECT_EQ(robot::TextOf(form["Edit"]), "");
                EXPECT_EQ(Actions(), 0);
            });
        form.Ok().Open();
    }
}

TEST_F(PushButton, ALaterStatementReplacesTheFirst)
{
    form.main.values = {"Source=ONE,one", "Go=DELETE,Source", "Go=ADD,Source,Target"};
    form.Then([&] { robot::Click(form["Go"]); });
    ExpectActions(1);
    form.Ok().Open();
}

TEST_F(PushButton, AnOptionWordIsNoAction)
{
    form.main.values.emplace_back("Go=ADD,INACTIVE");
    form.Then([&] { EXPECT_FALSE(IsWindowEnabled(form["Go"])); });
    form.Ok().Open();
}

TEST_F(PushButton, KnowsTwoStateWordsOnly)
{
    form.main.rules = {"Go/ACTIVE=Source(two)", "Go/OTHER=Source(two)"};
    form.Then(
        [&]
        {
            EXPECT_FALSE(IsWindowEnabled(form["Go"]));
            EXPECT_TRUE(IsWindowVisible(form["Go"]));
        });
    form.Ok().Open();

    form.main.rules = {"Go/VISIBLE=Source(two)"};
    form.Then(
        [&]
        {
            EXPECT_TRUE(IsWindowEnabled(form["Go"]));
            EXPECT_FALSE(IsWindowVisible(form["Go"]));
        });
    form.Ok().Open();
}

TEST_F(PushButton, ComesUpBeforeAFailureIsTold)
{
    form.main.values = {"Go=ACTION,lib"};
    form.Then([&] { robot::Click(form["Go"]); });
    form.Message();
    form.Then([&] { EXPECT_EQ(SendMessageA(form["Go"], BM_GETSTATE, 0, 0) & BST_PUSHED, 0); });
    EXPECT_EQ(form.Ok().Open().messages, (Texts{invalidArgument}));
}
