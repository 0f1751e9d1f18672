// The edit: its default, its library, its rules.
#include "PlainControlsFixture.h"

using Edits = PlainControls;

TEST_F(Edits, EditReadsFilledByBeforeTheOptionWords)
{
    description.values = "Edit = FILLEDBY, INACTIVE, function\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_TRUE(IsWindowEnabled(Edit(dialog))); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Edits, EditStartsWithItsDefault)
{
    description.values = "Edit = first\nEdit = preset, second\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_EQ(robot::TextOf(Edit(dialog)), "second"); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Edits, EditThatFillsItselfAtCreationFindsNoOutputRuleYet)
{
    description.values = "Edit = FILLEDBY, lytdata, LookUp, x, Lookup\nEdit = FILL\n";
    description.output += "$OUTPUT, Lookup\n(\"fruit/Apple\")\n";
    Describe(description);
    // The output groups are not read yet when the windows are made, so the rule is not found and nothing happens.
    On([](HWND dialog) { EXPECT_EQ(robot::TextOf(Edit(dialog)), ""); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);

    description.values = "Edit = FILLEDBY, lytdata, CountOf\nEdit = FILL\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_EQ(robot::TextOf(Edit(dialog)), "") << "no such function"; });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Edits, EditFillsThroughItsRuleAndItsLibrary)
{
    description.values = "Edit = FILLEDBY, lytdata, LookUp, x, Lookup\n";
    description.rules = "Edit/FILL = Key\n";
    description.output += "$OUTPUT, Lookup\nKey(Apple,Plum) = (\"fruit/%s\", Key)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            SetWindowTextA(Edit(dialog), "as it was");
            robot::ReplaceText(Key(dialog), "Apple");
            EXPECT_EQ(robot::TextOf(Edit(dialog)), "A");
            robot::ReplaceText(Key(dialog), "Plum");
            EXPECT_EQ(robot::TextOf(Edit(dialog)), "PL");
            robot::ReplaceText(Key(dialog), "Pear");
            EXPECT_EQ(robot::TextOf(Edit(dialog)), "PL") << "a rule that does not compose ends the fill";
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}

TEST_F(Edits, EditsShareTheLibraryThatTheFirstLoaded)
{
    description.controls += "TextBox 10, 110, 150, 15, .Other\n";
    description.values = "Edit = FILLEDBY, lytdata, LookUp, x, Lookup\nKey = FILLEDBY, nowhere, LookUp, x, Lookup\n";
    description.rules = "Edit/FILL = Other\nKey/FILL = Other\n";
    description.output += "$OUTPUT, Lookup\n(\"fruit/%s\", Other)\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            robot::ReplaceText(robot::ChildAt(dialog, 6), "Pear");
            EXPECT_EQ(robot::TextOf(Edit(dialog)), "P");
            EXPECT_EQ(robot::TextOf(Key(dialog)), "P");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}

TEST_F(Edits, EmptyPieceDoesNotEmptyAnEdit)
{
    description.values = "Edit = kept\n";
    description.input = "$INPUT, parent\nStart: (\";\", Next, Rest, Next = Key\nNext: (\";\", End, Rest, End = Edit\n";
    Describe(description);
    On([](HWND dialog) { EXPECT_EQ(robot::TextOf(Edit(dialog)), "kept"); });
    EXPECT_EQ(ShowAndPress(IDOK, "a;"), 1);
}

TEST_F(Edits, ClearEmptiesADisplayOnlyEditToo)
{
    description.values = "Edit = DISPLAYONLY\nEdit = text\n";
    description.rules = "Edit/CLEAR = Key\n";
    Describe(description);
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(robot::TextOf(Edit(dialog)), "text");
            robot::ReplaceText(Key(dialog), "x");
            EXPECT_EQ(robot::TextOf(Edit(dialog)), "");
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 1);
}
