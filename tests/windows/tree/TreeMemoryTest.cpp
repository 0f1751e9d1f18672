// What one opening leaves for the next: open branches, the current entry, and what a property dialog's Cancel
// takes back.
#include "TreeFixture.h"

class TreeMemory : public TreeTest
{
protected:
    TreeMemory() { UseSource(); }

    // Opens the browser, presses OK on an entry of the wrong type, and cancels.
    void PickRefused(const std::string& request, const std::string& label)
    {
        const Answer answer = Open(request, {[&](const TreeWindow& tree) { tree.Pick(label); },
                                             [](const TreeWindow& tree) { tree.Cancel(); }});
        EXPECT_EQ(answer.messages, Lines({"Pick another."}));
    }

    void Arrange(const std::function<void(const TreeWindow&)>& arrange, const std::string& label)
    {
        Open("S",
             [&](const TreeWindow& tree)
             {
                 arrange(tree);
                 tree.Pick(label);
             });
    }

    // Shows a property dialog, does something while it is open, and cancels it.
    void CancelPropertyDialog(const std::function<void()>& meanwhile)
    {
        folder.Write("dialogs/lytInSym.dlg", "$VERSION 1\n$LAYOUT Symbol\n"
                                             "Begin Dialog Box 200, 100, \"Title\", .Main\n"
                                             "TextBox 10, 10, 100, 19, .Key\n"
                                             "OKButton 10, 40, 60, 20, .Ok\n"
                                             "CancelButton 80, 40, 60, 20, .Cancel\n"
                                             "End Dialog\n"
                                             "$VALUES\n$DEPENDANCES\n$EVALUATION, x\n"
                                             "$INPUT, parent\nStart: (\"~\", End = Key\n"
                                             "$OUTPUT, parent\n(\"%s\", Key)\n$END\n");
        robot::Robot robot;
        const auto isPropertyDialog = []
        { return robot::ActiveDialog() != nullptr && GetDlgItem(robot::ActiveDialog(), 1000) == nullptr; };
        robot.When("property dialog", isPropertyDialog, meanwhile)
            .When("cancel", isPropertyDialog, [] { SendMessageA(robot::ActiveDialog(), WM_COMMAND, IDCANCEL, 0); });
        GuardedBuffer buffer(255);
        EXPECT_EQ(Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")("k", buffer.Data(), buffer.Size()),
                  0);
        EXPECT_TRUE(robot.Done()) << robot.Log();
    }
};

TEST_F(TreeMemory, SecondOpeningShowsWhatWasOpenAtTheLastOk)
{
    Configure("TreeLevels=3\n");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Roof", "Wall", "Garden"}));
    Arrange([](const TreeWindow& tree) { tree.Collapse("Roof"); }, "Brick");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Wall", "Garden"}));
}

TEST_F(TreeMemory, OpeningByLevelsGoesOnUntilTheFirstOk)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             tree.Collapse("House");
             tree.Cancel();
         });
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Garden"}));
    PickRefused("S", "House");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Garden"}));
    Arrange([](const TreeWindow& tree) { tree.Collapse("Garden"); }, "Brick");
    Configure("TreeLevels=9\n");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Wall"}));
}

TEST_F(TreeMemory, ParaTreeDoesNotEndTheOpeningByLevels)
{
    Pick("P", "Gravel");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Garden"}));
    EXPECT_EQ(Preselected("S"), "House");
}

TEST_F(TreeMemory, ParaTreeShowsWhatWasOpenAtItsLastOk)
{
    EXPECT_EQ(ItemsOpen("P"), Lines());
    Pick("P", "Gravel");
    EXPECT_EQ(ItemsOpen("P"), Lines({"Path"}));
    EXPECT_EQ(Preselected("P"), "Gravel");
}

TEST_F(TreeMemory, BranchIsKeptOpenByItsExactStateOnly)
{
    Arrange(
        [](const TreeWindow& tree)
        {
            EXPECT_EQ(tree.StateOf("House"), 96U | TVIS_SELECTED);
            EXPECT_EQ(tree.StateOf("Garden"), 96U);
            tree.SetState("Garden", 96U | TVIS_BOLD);
        },
        "Tin");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Roof"}));
}

TEST_F(TreeMemory, SelectedBranchIsKeptOpenToo)
{
    Configure("TreeLevels=3\n");
    Open("G", [](const TreeWindow& tree) { tree.Pick("Roof"); });
    Open("W", [](const TreeWindow& tree) { tree.Pick("House"); });
    EXPECT_EQ(ItemsOpen("W"), Lines({"House"}));
}

TEST_F(TreeMemory, GroupDialogForgetsTheBranchesThatItDoesNotShow)
{
    Configure("TreeLevels=3\n");
    Pick("S", "Tin");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Roof", "Wall", "Garden"}));
    Pick("G", "Roof");
    EXPECT_EQ(ItemsOpen("S"), Lines({"House"}));
}

TEST_F(TreeMemory, LaterOpeningSelectsTheEntryOfTheLastOk)
{
    Pick("S", "Tin");
    EXPECT_EQ(Preselected("S"), "Tin");
    EXPECT_EQ(Preselected("W"), "Tin");
    EXPECT_EQ(Preselected("Sbrick"), "Brick");
    EXPECT_EQ(Preselected("S"), "Tin");
}

TEST_F(TreeMemory, LaterGroupDialogSelectsNothingForASymbol)
{
    Pick("S", "Tin");
    EXPECT_EQ(Preselected("G"), "");
}

TEST_F(TreeMemory, RefusedChoiceIsRememberedThoughCancelled)
{
    Pick("S", "Tin");
    PickRefused("S", "Roof");
    EXPECT_EQ(Preselected("S"), "Roof");
}

TEST_F(TreeMemory, RefusedOkKeepsBranchesAndSize)
{
    Pick("S", "Tin");
    Open("S", {[](const TreeWindow& tree)
               {
                   tree.Collapse("House");
                   tree.Resize(380, 390);
                   tree.Pick("Garden");
               },
               [](const TreeWindow& tree) { tree.Cancel(); }});
    EXPECT_EQ(ItemsOpen("S"), Lines({"Roof", "Garden"}));
    EXPECT_EQ(SizeShown("S").cx, 380);
    EXPECT_EQ(SizeShown("S").cy, 390);
}

TEST_F(TreeMemory, OkWithoutASelectionKeepsTheCurrentEntry)
{
    Pick("S", "Tin");
    Open("S", {[](const TreeWindow& tree)
               {
                   tree.Collapse("House");
                   tree.SelectNothing();
                   tree.Confirm();
               },
               [](const TreeWindow& tree) { tree.Cancel(); }});
    EXPECT_EQ(Preselected("S"), "Tin");
}

TEST_F(TreeMemory, CancelAloneChangesNothing)
{
    Pick("S", "Tin");
    Open("S",
         [](const TreeWindow& tree)
         {
             tree.Expand("Wall");
             tree.Collapse("Garden");
             tree.Select("Brick");
             tree.Resize(380, 390);
             tree.Cancel();
         });
    EXPECT_EQ(ItemsOpen("S"), Lines({"House", "Roof", "Garden"}));
    EXPECT_EQ(Preselected("S"), "Tin");
    EXPECT_EQ(SizeShown("S").cx, 300);
}

TEST_F(TreeMemory, ReleaseForgetsEntriesButNotThatATreeWasConfirmed)
{
    Pick("S", "Tin");
    Get<decltype(FreeGlobalObject)>("FreeGlobalObject")();
    Get<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("", (folder.Path() + "\\dialogs").c_str(),
                                                                        folder.Path().c_str());
    EXPECT_EQ(ItemsOpen("S"), Lines());
    EXPECT_EQ(Preselected("S"), "");
}

// ---- a property dialog's Cancel

TEST_F(TreeMemory, CancelOfAPropertyDialogBringsBackTheEntrySelectedAtOpening)
{
    Pick("S", "Tin");
    CancelPropertyDialog(
        [&]
        {
            Pick("S", "Brick");
            EXPECT_EQ(Preselected("S"), "Brick");
        });
    EXPECT_EQ(Preselected("S"), "Tin");
}

TEST_F(TreeMemory, CancelOfAPropertyDialogGoesBackPastSeveralChoices)
{
    Pick("S", "Tin");
    CancelPropertyDialog(
        [&]
        {
            Pick("S", "Brick");
            Pick("S", "Lone");
        });
    EXPECT_EQ(Preselected("S"), "Tin");
}

TEST_F(TreeMemory, CancelOfAPropertyDialogGoesBackBeforeARefusedChoice)
{
    Pick("S", "Tin");
    CancelPropertyDialog(
        [&]
        {
            PickRefused("S", "Roof");
            // A choice was made in this property dialog, so this opening does not note its entry.
            EXPECT_EQ(Preselected("S"), "Roof");
        });
    EXPECT_EQ(Preselected("S"), "Tin");
}

TEST_F(TreeMemory, GroupDialogNotesTheCurrentEntryAsInitial)
{
    Pick("S", "Tin");
    // In the group dialog nothing is selected, for the symbol is not shown; it is the current entry all the same.
    CancelPropertyDialog([&] { Pick("G", "Wall"); });
    EXPECT_EQ(Preselected("S"), "Tin");
}

TEST_F(TreeMemory, CancelOfAPropertyDialogLeavesTheWizardsEntry)
{
    Pick("S", "Tin");
    CancelPropertyDialog([&] { Pick("W", "Brick"); });
    EXPECT_EQ(Preselected("S"), "Brick");
}

TEST_F(TreeMemory, CancelOfAPropertyDialogTouchesNoParaTree)
{
    Pick("P", "Gravel");
    CancelPropertyDialog([&] { Pick("P", "Fence"); });
    EXPECT_EQ(Preselected("P"), "Fence");
}
