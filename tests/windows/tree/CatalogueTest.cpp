// Buffers that are too short for the texts of a catalogue, and the wizard's dialogs.
#include "TreeFixture.h"

#include "support/OtherEndings.h"

class Catalogue : public TreeTest
{
protected:
    Catalogue() { UseSource(); }

    int Start(const char* key) { return Get<decltype(lytTreeStartChildNode)>("lytTreeStartChildNode")(key); }
};

using Wizard = Catalogue;

TEST_F(Catalogue, GivesATextThatFitsAndEmptiesABufferForALongerOne)
{
    static const struct
    {
        int size;
        const char* text;
        char beyond; // the byte one beyond the stated size
    } cases[] = {{6, "brick", GuardedBuffer::guard}, {5, "", GuardedBuffer::guard}, {4, "", '\0'}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.size);
        robot::Robot robot;
        robot.On("Catalogue", [&](HWND dialog) { TreeWindow(dialog).Pick("Brick"); });
        GuardedBuffer buffer(c.size, "old");
        EXPECT_EQ(Get<decltype(lytOpenTreeView)>("lytOpenTreeView")("S", buffer.Data(), buffer.Size()), 1);
        EXPECT_TRUE(robot.Done()) << robot.Log();
        EXPECT_EQ(buffer.Text(), c.text);
        EXPECT_EQ(buffer.ByteBeyond(), c.beyond);
        EXPECT_TRUE(buffer.IsIntact(1));
    }
}

TEST_F(Catalogue, LeavesAShortBufferOfALookupEmpty)
{
    auto* get = Get<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree");
    GuardedBuffer fits(6);
    EXPECT_EQ(get("brick", fits.Data(), fits.Size()), 1);
    EXPECT_EQ(fits.Text(), "brick");
    GuardedBuffer tooShort(4, "old");
    EXPECT_EQ(get("brick", tooShort.Data(), tooShort.Size()), 1);
    EXPECT_EQ(tooShort.Text(), "");
    EXPECT_TRUE(tooShort.IsIntact());
}

TEST_F(Catalogue, LeavesShortBuffersOfChildrenEmptyAndMovesOn)
{
    auto* read = Get<decltype(lytTreeReadChildNode)>("lytTreeReadChildNode");
    ItemsShown("S");
    EXPECT_EQ(Start("roof"), 1);
    GuardedBuffer text(4, "old");
    GuardedBuffer path(14, "old");
    EXPECT_EQ(read(text.Data(), text.Size(), path.Data(), path.Size()), 1);
    EXPECT_EQ(text.Text(), "");
    EXPECT_EQ(path.Text(), "");
    EXPECT_TRUE(text.IsIntact() && path.IsIntact());
    EXPECT_EQ(read(text.Data(), text.Size(), path.Data(), path.Size()), 1);
    EXPECT_EQ(text.Text(), "Tin");
    EXPECT_EQ(path.Text(), "tin\\Tin");
}

TEST_F(Catalogue, KeepsItsPlaceAmongChildrenWithoutRoom)
{
    auto* read = Get<decltype(lytTreeReadChildNode)>("lytTreeReadChildNode");
    ItemsShown("S");
    EXPECT_EQ(Start("roof"), 1);
    GuardedBuffer text(10, "old");
    EXPECT_EQ(read(text.Data(), text.Size(), nullptr, 10), 0);
    EXPECT_EQ(read(nullptr, 10, text.Data(), text.Size()), 0);
    EXPECT_EQ(read(text.Data(), 0, text.Data(), text.Size()), 0);
    EXPECT_EQ(text.Text(), "old");
    EXPECT_EQ(ReadChildren().size(), 2U);
}

TEST_F(Wizard, LetsItsGroupDialogFillACheckListForTheGroup)
{
    Description description;
    description.controls =
        "PushButton 120, 10, 60, 20, .Fill\nCheckListBox 10, 70, 100, 60, .List\n" + description.controls;
    description.values = "List = FILLEDBY, " + NastyLibrary() + ", Open, NextEcho\nFill = FILL, List\n";
    WriteDialog("lytWzGrp", description);
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
        EXPECT_EQ(CallWizard(), "0 untouched");
        EXPECT_TRUE(robot.Done()) << robot.Log();
    }
}

TEST_F(Wizard, AnyEndOtherThanItsOwnOkGivesZero)
{
    WriteDialog("lytWzGrp", {});
    for (const OtherEnding& ending : otherEndings)
    {
        SCOPED_TRACE(ending.name);
        robot::Robot robot;
        robot.On("Catalogue", ending.act);
        EXPECT_EQ(CallWizard(), "0 untouched");
        EXPECT_EQ(TakeQuit(), ending.leavesQuit);
        robot.On("Catalogue", [](HWND dialog) { TreeWindow(dialog).Pick("Roof"); }).On("Group", ending.act);
        EXPECT_EQ(CallWizard(), "0 untouched");
        EXPECT_EQ(TakeQuit(), ending.leavesQuit);
        EXPECT_TRUE(robot.Done()) << robot.Log();
    }
}

TEST_F(Wizard, MissingDialogGivesZeroAfterItsMessage)
{
    robot::Robot robot;
    robot.On("Catalogue", [](HWND dialog) { TreeWindow(dialog).Pick("Tin"); }).AnswerMessage();
    EXPECT_EQ(CallWizard(), "0 untouched");
    EXPECT_TRUE(robot.Done()) << robot.Log();
    ASSERT_EQ(robot.Messages().size(), 1U);
    EXPECT_EQ(robot.Messages().front().substr(0, 9), "No file '");
}

TEST_F(Wizard, TakesNothingFromTheListWithoutRoom)
{
    WriteDialog("lytWzGrp", {});
    EXPECT_EQ(AskWizard("Roof", "Group", "head/LIST{a"), "1 head/LIST{");
    auto* next = Get<decltype(lytWizard)>("lytWizard");
    GuardedBuffer buffer(10, "old");
    EXPECT_EQ(next(nullptr, 10), 0);
    EXPECT_EQ(next(buffer.Data(), 0), 0);
    EXPECT_EQ(CallWizard(), "0 a");
}
