// The wizard: from the entry picked to the texts delivered.
#include "WizardFixture.h"

#include "support/OtherEndings.h"

TEST_F(Wizard, DeliversAListOneTextByOne)
{
    EXPECT_EQ(Ask("Roof", "Group", "head/LIST{a|b|c"), "1 head/LIST{");
    EXPECT_EQ(input, "roof/Roof");
    EXPECT_EQ(Next(), "1 a|");
    EXPECT_EQ(Next(), "1 b|");
    EXPECT_EQ(Next(), "0 c");
    EXPECT_EQ(Ask("Tin", "Symbol", "new"), "2 new");
}

TEST_F(Wizard, DeliversAListOfOneText)
{
    EXPECT_EQ(Ask("Roof", "Group", "head/LIST{only"), "1 head/LIST{");
    EXPECT_EQ(Next(), "0 only");
}

TEST_F(Wizard, LosesTheLastTextOfAListThatEndsInAMark)
{
    EXPECT_EQ(Ask("Roof", "Group", "head/LIST{a|b|"), "1 head/LIST{");
    EXPECT_EQ(Next(), "1 a|");
    EXPECT_EQ(Next(), "0 untouched");
    EXPECT_EQ(Ask("Tin", "Symbol", "new"), "2 new");
}

TEST_F(Wizard, LetsItsGroupDialogFillACheckListForTheGroup)
{
    WriteDialog("lytWzGrp", "lytWzGrp", "CheckListBox 10, 70, 100, 60, .List\nPushButton 120, 10, 60, 20, .Fill\n",
                "List = FILLEDBY, " + NastyLibrary() + ", Open, NextEcho\nFill = FILL, List\n");
    for (const auto& [label, group] : {std::pair("Roof", "<roof>"), std::pair("Wall", "<wall>")})
    {
        robot::Robot robot;
        robot.On("Catalogue", [choice = label](HWND dialog) { TreeWindow(dialog).Pick(choice); })
            .On("Group", [](HWND dialog) { robot::Click(robot::ChildOfClass(dialog, "Button")); })
            .On("Group",
                [items = Lines{group}](HWND dialog)
                {
                    EXPECT_EQ(robot::ItemsOf(robot::ChildOfClass(dialog, "ListBox")), items);
                    robot::Press(robot::ChildWithText(dialog, "Stop"));
                });
        EXPECT_EQ(Next(), "0 untouched");
        EXPECT_TRUE(robot.Done()) << robot.Log();
    }
}

TEST_F(Wizard, AsksForASymbolByKeyAndLabel)
{
    EXPECT_EQ(Ask("Tile   red", "Symbol", "text"), "2 text");
    EXPECT_EQ(input, "tile/Tile##red");
}

TEST_F(Wizard, AsksForAPhraseByTheHeadingsLabel)
{
    EXPECT_EQ(Ask("Garden", "Phrase", "text"), "3 text");
    EXPECT_EQ(input, "Garden");
}

TEST_F(Wizard, CancelInTheTreeGivesZero)
{
    robot::Robot robot;
    robot.On("Catalogue", [](HWND dialog) { TreeWindow(dialog).Cancel(); });
    EXPECT_EQ(Next(), "0 untouched");
    EXPECT_TRUE(robot.Done()) << robot.Log();
}

TEST_F(Wizard, AnyEndOtherThanItsOwnOkGivesZero)
{
    for (const OtherEnding& ending : otherEndings)
    {
        SCOPED_TRACE(ending.name);
        robot::Robot robot;
        robot.On("Catalogue", ending.act);
        EXPECT_EQ(Next(), "0 untouched");
        EXPECT_EQ(TakeQuit(), ending.leavesQuit);
        robot.On("Catalogue", [](HWND dialog) { TreeWindow(dialog).Pick("Roof"); }).On("Group", ending.act);
        EXPECT_EQ(Next(), "0 untouched");
        EXPECT_EQ(TakeQuit(), ending.leavesQuit);
        EXPECT_TRUE(robot.Done()) << robot.Log();
    }
}

TEST_F(Wizard, CancelInADialogGivesZeroAndStartsNoDelivery)
{
    EXPECT_EQ(Ask("Roof", "Group", nullptr), "0 untouched");
    EXPECT_EQ(Ask("Garden", "Phrase", nullptr), "0 untouched");
    EXPECT_EQ(Ask("Tin", "Symbol", nullptr), "0 untouched");
    EXPECT_EQ(Ask("Tin", "Symbol", "text"), "2 text");
}

TEST_F(Wizard, MissingDialogGivesZeroAfterItsMessage)
{
    DeleteFileA((folder.Path() + "\\dialogs\\lytWzSym.dlg").c_str());
    robot::Robot robot;
    robot.On("Catalogue", [](HWND dialog) { TreeWindow(dialog).Pick("Tin"); }).AnswerMessage();
    EXPECT_EQ(Next(), "0 untouched");
    EXPECT_TRUE(robot.Done()) << robot.Log();
    ASSERT_EQ(robot.Messages().size(), 1U);
    EXPECT_EQ(robot.Messages().front().substr(0, 9), "No file '");
}

TEST_F(Wizard, DeliversAnOldListBeforeTheTreeIsShownAgain)
{
    Ask("Roof", "Group", "head/LIST{a|b");
    Get<decltype(FreeGlobalObject)>("FreeGlobalObject")();
    EXPECT_EQ(Next(), "1 a|");
    EXPECT_EQ(Next(), "0 b");
}

TEST_F(Wizard, LeavesAShortBufferEmpty)
{
    EXPECT_EQ(Ask("Tin", "Symbol", "text", 4), "2 ");
    // The first text of a group is measured by itself.
    EXPECT_EQ(Ask("Roof", "Group", "h/LIST{abcdefgh|i", 8), "1 h/LIST{");
    EXPECT_EQ(Next(8), "1 ");
    EXPECT_EQ(Next(8), "0 i");
}

TEST_F(Wizard, TakesNothingFromTheListWithoutRoom)
{
    Ask("Roof", "Group", "head/LIST{a");
    EXPECT_EQ(Get<decltype(lytWizard)>("lytWizard")(nullptr, 10), 0);
    GuardedBuffer buffer(10, "old");
    EXPECT_EQ(Get<decltype(lytWizard)>("lytWizard")(buffer.Data(), 0), 0);
    EXPECT_EQ(Next(), "0 a");
}

TEST_F(Wizard, CancelOfItsDialogTakesBackTheChoiceInTheTree)
{
    Pick("S", "Brick");
    Ask("Tin", "Symbol", nullptr);
    // The first opening of the tree had the root selected, and the second one no longer noted what was.
    EXPECT_EQ(Preselected("S"), "House");
}

TEST_F(Wizard, OkOfItsDialogKeepsTheChoiceInTheTree)
{
    Ask("Tin", "Symbol", "text");
    EXPECT_EQ(Preselected("S"), "Tin");
}
