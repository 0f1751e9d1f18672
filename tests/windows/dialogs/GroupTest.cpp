// The group dialog: the key is split before it and joined again after it.
#include "DialogFixture.h"

#include "support/OtherEndings.h"

namespace
{

class Group : public DialogFixture
{
protected:
    Group()
    {
        Describe({}, "lytCdGrp");
        Describe({}, "lytRpGrp");
    }

    // Shows the dialog, puts a text into its field unless it is null, and presses OK.
    int Edit(int kind, const char* key, const char* value)
    {
        On(
            [&, value](HWND dialog)
            {
                scanned = robot::TextOf(robot::ChildAt(dialog, 0));
                if (value != nullptr)
                    robot::ReplaceText(robot::ChildAt(dialog, 0), value);
                robot::Press(GetDlgItem(dialog, IDOK));
            });
        const int outcome = group(kind, key, first.Data(), first.Size(), second.Data(), second.Size());
        EXPECT_TRUE(first.IsIntact());
        EXPECT_TRUE(second.IsIntact(1)) << "one byte beyond the second size may be written";
        return outcome;
    }

    std::string scanned;
    GuardedBuffer first{40, "old1"};
    GuardedBuffer second{40, "old2"};
};

} // namespace

TEST_F(Group, UnchangedTailOfAKeyWithTheMark)
{
    EXPECT_EQ(Edit(0, "xBNGy(a)", "(a)/1b"), 2);
    EXPECT_EQ(scanned, "(a)");
    EXPECT_EQ(first.Text(), "(a)") << "the head is put back on a change only";
    EXPECT_EQ(second.Text(), "1b");
}

TEST_F(Group, ChangedTailGetsItsHeadBack)
{
    EXPECT_EQ(Edit(0, "xBNGy(a)", "(z)/1b"), 1);
    EXPECT_EQ(first.Text(), "xBNGy(z)");
    EXPECT_EQ(std::string(second.Data(), 8), std::string("1b\0"
                                                         "2\0(a)",
                                                         8))
        << "bytes 5 to 7 of the key go to the same places, after the end of the text as well";
}

TEST_F(Group, SplitsTheKeyAndJoinsItAgain)
{
    static const struct
    {
        int kind;
        int outcome;
        const char* key;
        const char* value; // what the field gives back
        const char* first;
        const char* second;
        const char* scanned; // what the field was given
    } cases[] = {
        // Three bytes of the key go over those of the second text.
        {1, 1, "KEY01abc(x)", "(y)/123456789", "KEY01abc(y)", "12345abc9", "(x)"},
        // An empty tail occurs in any input of kind 0.
        {0, 2, "xBNGy(a)", "no separator", "", "", "(a)"},
        {1, 1, "xBNGy(a)", "no separator", "xBNGy", "", "(a)"},
        // A tail inside the input is no change for kind 0 only.
        {0, 2, "BNG(a)(b)", "(b)/1", "(b)", "1", "(a)(b)"},
        {1, 1, "BNG(a)(b)", "(b)/1", "BNG(b)", "1", "(a)(b)"},
        // Kind 1 splits any key; one without a bracket has no head, and an empty one is not split.
        {1, 2, "head(a)", "(a)/1", "(a)", "1", "(a)"},
        {1, 1, "BNG", "(a)/1", "(a)", "1", "BNG"},
        {1, 1, "", "(a)/1", "(a)", "1", ""},
        {1, 1, nullptr, "(a)/1", "(a)", "1", ""},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(testing::Message() << c.kind << " " << (c.key != nullptr ? c.key : "null"));
        EXPECT_EQ(Edit(c.kind, c.key, c.value), c.outcome);
        EXPECT_EQ(first.Text(), c.first);
        EXPECT_EQ(second.Text(), c.second);
        EXPECT_EQ(scanned, c.scanned);
    }
}

TEST_F(Group, ShortKeyAndShortSecondBufferAreLeftAlone)
{
    EXPECT_EQ(Edit(1, "K(x)", "(y)/123456789"), 1);
    EXPECT_EQ(first.Text(), "K(y)");
    EXPECT_EQ(second.Text(), "123456789");

    GuardedBuffer seven(7, "old");
    On(
        [](HWND dialog)
        {
            robot::ReplaceText(robot::ChildAt(dialog, 0), "(y)/1");
            robot::Press(GetDlgItem(dialog, IDOK));
        });
    EXPECT_EQ(group(1, "KEY01abc(x)", first.Data(), first.Size(), seven.Data(), 7), 1);
    EXPECT_EQ(seven.Text(), "1");
    EXPECT_EQ(seven.ByteBeyond(), GuardedBuffer::guard);
}

TEST_F(Group, KeyWithoutTheMarkIsNotSplitForKind0)
{
    EXPECT_EQ(Edit(0, "head(a)", "(a)/1"), 1) << "any OK counts as a change";
    EXPECT_EQ(scanned, "head(a)");
    EXPECT_EQ(first.Text(), "(a)");
    EXPECT_EQ(second.Text(), "1");
}

TEST_F(Group, ResultWithoutTheSeparatorGivesTwoEmptyTexts)
{
    EXPECT_EQ(Edit(0, "abc", "no separator"), 1);
    EXPECT_EQ(first.Text(), "");
    EXPECT_EQ(second.Text(), "");
}

TEST_F(Group, Kind2TakesTheOtherDescriptionAndSplitsOnlyAtTheMark)
{
    Description other;
    other.begin = "Begin Dialog Box 300, 200, \"Label\", .Main\n";
    Describe(other, "lytCdGrp");
    EXPECT_EQ(Edit(2, "head(a)", nullptr), 1);
    EXPECT_EQ(scanned, "head(a)");
    EXPECT_EQ(Edit(2, "BNG(a)", "(a)/1"), 2);
    EXPECT_EQ(scanned, "(a)");
}

TEST_F(Group, EmptyResultLeavesBothBuffersAndTheTailIsTakenFromTheFirst)
{
    EXPECT_EQ(Edit(0, "abc", ""), 1);
    EXPECT_EQ(first.Text(), "old1");
    EXPECT_EQ(second.Text(), "old2");

    first = GuardedBuffer(40, "kept(a)");
    EXPECT_EQ(Edit(1, "K(a)", ""), 2);
    EXPECT_EQ(first.Text(), "kept(a)");
}

TEST_F(Group, CancelLeavesBothBuffers)
{
    PressOn(IDCANCEL);
    EXPECT_EQ(group(0, "xBNGy(a)", first.Data(), first.Size(), second.Data(), second.Size()), 0);
    EXPECT_EQ(first.Text(), "old1");
    EXPECT_EQ(second.Text(), "old2");
}

TEST_F(Group, AnyEndOtherThanItsOwnOkLeavesBothBuffers)
{
    for (const OtherEnding& ending : otherEndings)
    {
        SCOPED_TRACE(ending.name);
        On(ending.act);
        EXPECT_EQ(group(1, "F-002REPfindings(a;R;roofing)", first.Data(), first.Size(), second.Data(), second.Size()),
                  0);
        EXPECT_EQ(first.Text(), "old1");
        EXPECT_EQ(second.Text(), "old2");
        EXPECT_EQ(TakeQuit(), ending.leavesQuit);
    }
}

TEST_F(Group, FirstPartThatIsTooLongIs254WithTheSize)
{
    first = GuardedBuffer(4, "old");
    const auto edit = [&](const char* value)
    {
        On(
            [value](HWND dialog)
            {
                robot::ReplaceText(robot::ChildAt(dialog, 0), value);
                robot::Press(GetDlgItem(dialog, IDOK));
            });
    };
    edit("(abc)/1x");
    robot.AnswerMessage();
    EXPECT_EQ(group(0, "a", first.Data(), 4, second.Data(), second.Size()), 0);
    EXPECT_EQ(robot.Messages(), Texts{"E254 '4'"});
    EXPECT_EQ(first.Text(), "");
    EXPECT_EQ(second.Text(), "old2") << "nothing follows the refusal";
    EXPECT_TRUE(first.IsIntact());

    // As long as the buffer is not longer than it: the text does not fit, and that is all.
    edit("(ab)/1x");
    EXPECT_EQ(group(0, "a", first.Data(), 4, second.Data(), second.Size()), 1);
    EXPECT_EQ(first.Text(), "");
    EXPECT_EQ(second.Text(), "1x");
    EXPECT_TRUE(first.IsIntact());
    EXPECT_EQ(robot.Messages().size(), 1U);
}

TEST_F(Group, SecondPartThatIsTooLongLeavesItsBufferEmptyWithANulBeyond)
{
    second = GuardedBuffer(3, "ol");
    EXPECT_EQ(Edit(0, "a", "(a)/123"), 1);
    EXPECT_EQ(second.Text(), "");
    EXPECT_EQ(second.ByteBeyond(), GuardedBuffer::guard) << "as long as the size is not longer";
    EXPECT_EQ(Edit(0, "a", "(a)/1234"), 1);
    EXPECT_EQ(second.Text(), "");
    EXPECT_EQ(second.ByteBeyond(), '\0');
    EXPECT_TRUE(second.IsIntact(1));
}

TEST_F(Group, RejoinedTextThatDoesNotFitLeavesTheFirstBufferEmpty)
{
    first = GuardedBuffer(6, "old");
    EXPECT_EQ(Edit(1, "head(a)", "(z)/1"), 1);
    EXPECT_EQ(first.Text(), "");
}

// The tail is looked for in what the second text has left there.
TEST_F(Group, OneBufferForBothTextsEndsWithTheSecond)
{
    On(
        [](HWND dialog)
        {
            robot::ReplaceText(robot::ChildAt(dialog, 0), "(z)/1b(a)");
            robot::Press(GetDlgItem(dialog, IDOK));
        });
    EXPECT_EQ(group(0, "xBNGy(a)", first.Data(), first.Size(), first.Data(), first.Size()), 2);
    EXPECT_EQ(first.Text(), "1b(a)");
}
