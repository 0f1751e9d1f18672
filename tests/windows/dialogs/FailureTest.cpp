// Descriptions that cannot become a dialog: one message, result 0, and the caller's buffer as it was.
#include "DialogFixture.h"

#include "CreationHook.h"

using Failure = DialogFixture;

namespace
{

// Cut to what a message holds.
std::string Shown(const std::string& message)
{
    return message.substr(0, 74);
}

} // namespace

TEST_F(Failure, MissingDescriptionIs207WithItsName)
{
    EXPECT_EQ(MessageOfFailure(), Shown("E207 '" + folder.Path() + "\\lytInSym.dlg'"));
}

TEST_F(Failure, WithoutADialogFolderTheNameBeginsWithABackslash)
{
    initialise("", "", folder.Path().c_str());
    EXPECT_EQ(MessageOfFailure(), "no value present");
    robot.AnswerMessage();
    GuardedBuffer first(20, "1"), second(20, "2");
    EXPECT_EQ(group(0, "key", first.Data(), 20, second.Data(), 20), 0);
    EXPECT_EQ(first.Text() + second.Text(), "12");
}

TEST_F(Failure, EachSectionHasItsMessage)
{
    const struct
    {
        std::string Description::*section;
        const char* content;
        const char* message;
    } cases[] = {
        {&Description::controls, "TextBox 1, 2, 3\n", "E212 '4'"},
        {&Description::values, "Key\n", "E212 '9'"},
        {&Description::rules, "Key = Key\n", "E212 '10'"},
        {&Description::evaluation, "$EVALUATION,\n", "E204 ''"},
        {&Description::checks, "Key: x\n", "E212 '11'"},
        {&Description::input, "$INPUT, parent\nStart (\n", "E212 '12'"},
        {&Description::input, "$INPUT, other\nStart: (999, End = Key\n", "E217 'parent'"},
        {&Description::output, "$OUTPUT\n)x\n", "E212 '14'"},
        {&Description::end, "", "E217 '$END'"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.content);
        Description description;
        description.*c.section = c.content;
        Describe(description);
        EXPECT_EQ(MessageOfFailure(), c.message);
    }
}

TEST_F(Failure, WindowThatCannotBeCreatedIs202WithItsName)
{
    for (const char* type : {"TextBox", "Text", "GroupBox"})
    {
        SCOPED_TRACE(type);
        Description description;
        description.controls += std::string(type) + " 10, 60, 50, 12, \"Label\", .Refused\n";
        Describe(description);
        int made = 0;
        // The fourth control after the dialog itself.
        const CreationHook refuse(
            [&](const CREATESTRUCTA& create)
            {
                return create.hwndParent == nullptr || GetParent(create.hwndParent) != nullptr ||
                       (static_cast<DWORD>(create.style) & WS_CHILD) == 0 || ++made != 4;
            });
        robot.When(
            "message", [] { return robot::IsMessageBox(robot::ActiveDialog()); },
            [&]
            {
                EXPECT_EQ(robot::MessageTextOf(robot::ActiveDialog()), "E202 'Refused'");
                robot::Press(GetDlgItem(robot::ActiveDialog(), IDOK));
            });
        EXPECT_EQ(Show("key"), 0);
        EXPECT_EQ(text, "as it was");
    }
}

TEST_F(Failure, ButtonThatCannotBeCreatedGoesUnnoticed)
{
    Describe({});
    const CreationHook refuse([](const CREATESTRUCTA& create)
                              { return create.hMenu != reinterpret_cast<HMENU>(UINT_PTR{IDCANCEL}); });
    On([](HWND dialog) { EXPECT_EQ(robot::ChildrenOf(dialog).size(), 2U); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Failure, NextDialogWorksAfterAnyFailure)
{
    Description broken;
    broken.values = "Key\n";
    Describe(broken);
    EXPECT_EQ(MessageOfFailure(), "E212 '9'");
    Describe({});
    EXPECT_EQ(ShowAndPress(IDOK, "A1"), 2);
    EXPECT_EQ(text, "A1");
}
