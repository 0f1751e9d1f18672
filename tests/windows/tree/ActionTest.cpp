// A push button of a described dialog that opens the browser and takes the choice into the form.
#include "TreeFixture.h"

class TreeAction : public TreeTest
{
protected:
    TreeAction()
    {
        UseSource();
        WriteForm("lyt64.dll, lytOpenTreeView");
        folder.Write("dialogs/lang/English.nls", "[Label]\nTreeDlgLabel=Catalogue\n"
                                                 "[Symbol]\nForm=Form\nPick=Pick\n"
                                                 "[Buttons]\n001=Fine\n002=Stop\n"
                                                 "[Dialog_Error]\n222=Pick another.\n");
    }

    // A form whose button calls that function of that library.
    void WriteForm(const std::string& function)
    {
        folder.Write("dialogs/lytInSym.dlg", "$VERSION 1\n$LAYOUT Symbol\n"
                                             "Begin Dialog Box 200, 100, \"Form\", .Main\n"
                                             "TextBox 10, 10, 100, 19, .Key\n"
                                             "TextBox 10, 30, 100, 19, .Choice\n"
                                             "PushButton 10, 60, 60, 20, \"Pick\", .Pick\n"
                                             "OKButton 80, 60, 60, 20, .Ok\n"
                                             "CancelButton 150, 60, 60, 20, .Cancel\n"
                                             "End Dialog\n"
                                             "$VALUES\nPick: ACTION = " +
                                                 function +
                                                 ", PickOut, PickIn\n"
                                                 "$DEPENDANCES\n$EVALUATION, x\n"
                                                 "$INPUT, parent\nStart: (\"~\", End = Key\n"
                                                 "$INPUT, PickIn\nStart: (99, End = Choice\n"
                                                 "$OUTPUT, parent\n(\"%s>%s\", Key, Choice)\n"
                                                 "$OUTPUT, PickOut\n(\"%s\", Key)\n$END\n");
    }

    // Opens the form over the key, presses the button, lets the browser be worked when there is one, and confirms the
    // form.
    std::string Run(const char* key, const std::function<void(const TreeWindow&)>& act = nullptr)
    {
        robot::Robot robot;
        robot.On("Form", [](HWND dialog) { robot::Click(robot::ChildWithText(dialog, "Pick")); });
        if (act != nullptr)
            robot.On("Catalogue", [&](HWND dialog) { act(TreeWindow(dialog)); });
        robot.On("Form", [](HWND dialog) { robot::Press(robot::ChildWithText(dialog, "Fine")); });
        GuardedBuffer buffer(255, "untouched");
        Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")(key, buffer.Data(), buffer.Size());
        EXPECT_TRUE(robot.Done()) << robot.Log();
        return buffer.Text();
    }
};

TEST_F(TreeAction, TakesTheChoiceIntoTheForm)
{
    EXPECT_EQ(Run("S", [](const TreeWindow& tree) { tree.Pick("Tin"); }), "S>tin");
}

TEST_F(TreeAction, HandsTheBrowserItsKindAndStart)
{
    EXPECT_EQ(Run("Gbrick",
                  [](const TreeWindow& tree)
                  {
                      EXPECT_EQ(tree.Selected(), "Wall");
                      tree.Confirm();
                  }),
              "Gbrick>wall");
}

TEST_F(TreeAction, TakesNothingFromACancelledBrowser)
{
    EXPECT_EQ(Run("S", [](const TreeWindow& tree) { tree.Cancel(); }), "S>");
}

TEST_F(TreeAction, TakesNothingFromACancelledBrowserAfterAChoiceEither)
{
    EXPECT_EQ(Pick("S", "Tin").text, "tin");
    EXPECT_EQ(Run("S", [](const TreeWindow& tree) { tree.Cancel(); }), "S>");
}

TEST_F(TreeAction, TakesTheAnswerOfAnyFunctionOnceABrowserWasConfirmed)
{
    WriteForm(NastyLibrary() + ", EchoText");
    EXPECT_EQ(Run("key"), "key>");
    EXPECT_EQ(Pick("S", "Tin").text, "tin");
    EXPECT_EQ(Run("key"), "key><key> 255");
    EXPECT_EQ(Run("key"), "key><key> 255");
    Open("S", [](const TreeWindow& tree) { tree.Cancel(); });
    EXPECT_EQ(Run("key"), "key>");
}
