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

TEST_F(Failure, FolderInPlaceOfTheDescriptionIs207)
{
    folder.File("lytInSym.dlg\\x");
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

TEST_F(Failure, EachStepOfTheReadingHasItsMessage)
{
    const struct
    {
        std::string file;
        std::string message;
    } cases[] = {
        {"", "E214 ''"},
        {"no section at all\n", "E214 ''"},
        {"$LAYOUT TEXTS\n", "E213 ''"},
        {"$VERSION 1 2\n", "E212 '1'"},
        {"$VERSION 1\n$LAYOUT TEXTS\n", "E215 ''"},
        {"$VERSION 1\n$LAYOUT TEXTS\nText 1,2,3,4\n", "E215 ''"},
        {"$VERSION 1\n$LAYOUT TEXTS\nBegin Box Box 300, 200, \"Title\", .Main\n", "E205 ''"},
        {"$VERSION 1\n$LAYOUT TEXTS\nBegin Dialog 300, 200, \"Title\", .Main\n", "E212 '3'"},
        {"$VERSION 1\n$LAYOUT TEXTS\nBegin Dialog Box 300, 200, \"Title, .Main\n", "E210 ''"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.file);
        folder.Write("lytInSym.dlg", c.file);
        EXPECT_EQ(MessageOfFailure(), c.message);
    }
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

TEST_F(Failure, EndOfFileInsideASectionNamesTheMissingWord)
{
    const std::string whole = Description().Text();
    const std::pair<const char*, const char*> cases[] = {
        {"$VALUES", "E216 ''"},      {"$DEPENDANCES", "E217 '$DEPENDANCES'"}, {"$EVALUATION", "E217 '$EVALUATION'"},
        {"$INPUT", "E217 '$INPUT'"}, {"$OUTPUT", "E217 '$OUTPUT'"},           {"$END", "E217 '$END'"},
    };
    for (const auto& [word, message] : cases)
    {
        SCOPED_TRACE(word);
        folder.Write("lytInSym.dlg", whole.substr(0, whole.find(word)));
        EXPECT_EQ(MessageOfFailure(), message);
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
                       (create.style & WS_CHILD) == 0 || ++made != 4;
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

TEST_F(Failure, EveryPieceOfADescriptionEndsInAMessageOrADialog)
{
    const std::string whole = Description().Text();
    for (size_t length = 0; length < whole.size(); length += 3)
    {
        SCOPED_TRACE(whole.substr(0, length));
        folder.Write("lytInSym.dlg", whole.substr(0, length));
        // A robot a round: each has its own time to wait.
        robot::Robot user;
        user.When(
            "message or dialog", [] { return robot::ActiveDialog() != nullptr; }, [] { robot::PressKey(VK_ESCAPE); });
        EXPECT_EQ(Show("key"), 0);
        EXPECT_EQ(text, "as it was");
    }
}

TEST_F(Failure, JunkIsNoDescription)
{
    std::string junk;
    for (int i = 0; i < 4000; ++i)
        junk += static_cast<char>(i * 7919 >> 3);
    for (const std::string& start :
         {std::string(), std::string("$VERSION 1\n$LAYOUT TEXTS\n"), Description().Text().substr(0, 90)})
    {
        folder.Write("lytInSym.dlg", start + junk);
        EXPECT_NE(MessageOfFailure(), "");
    }
}
