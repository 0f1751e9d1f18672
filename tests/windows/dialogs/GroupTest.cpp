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

TEST_F(Group, SplitsTheKeyAndJoinsItAgain)
{
    constexpr char guard = GuardedBuffer::guard;
    static const struct
    {
        int kind;
        int outcome;
        const char* key;
        const char* value; // what the field gives back
        const char* first;
        const char* second;
        const char* scanned; // what the field was given
        int firstSize = 40;
        int secondSize = 40;
        char beyondSecond = guard;
    } cases[] = {
        // The head is put back on a change only.
        {0, 2, "xBNGy(a)", "(a)/1b", "(a)", "1b", "(a)"},
        {0, 1, "xBNGy(a)", "(z)/1b", "xBNGy(z)", "1b", "(a)"},
        // Three bytes of the key replace three of the second text, unless either is short.
        {1, 1, "KEY01abc(x)", "(y)/123456789", "KEY01abc(y)", "12345abc9", "(x)"},
        {1, 1, "K(x)", "(y)/123456789", "K(y)", "123456789", "(x)"},
        {1, 1, "KEY01abc(x)", "(y)/1", "KEY01abc(y)", "1", "(x)", 40, 7},
        // Without the separator both texts are empty, and an empty tail occurs in any input of kind 0.
        {0, 2, "xBNGy(a)", "no separator", "", "", "(a)"},
        {0, 1, "abc", "no separator", "", "", "abc"},
        {1, 1, "xBNGy(a)", "no separator", "xBNGy", "", "(a)"},
        // A tail inside the input is no change for kind 0 only.
        {0, 2, "BNG(a)(b)", "(b)/1", "(b)", "1", "(a)(b)"},
        {1, 1, "BNG(a)(b)", "(b)/1", "BNG(b)", "1", "(a)(b)"},
        // A key without the mark is not split for kind 0, and any OK counts as a change.
        {0, 1, "head(a)", "(a)/1", "(a)", "1", "head(a)"},
        // Kind 1 splits any key; one without a bracket has no head, and an empty one is not split.
        {1, 2, "head(a)", "(a)/1", "(a)", "1", "(a)"},
        {1, 1, "BNG", "(a)/1", "(a)", "1", "BNG"},
        {1, 1, "", "(a)/1", "(a)", "1", ""},
        {1, 1, nullptr, "(a)/1", "(a)", "1", ""},
        // What does not fit leaves its buffer empty; a second text longer than its size also writes the byte beyond.
        {1, 1, "head(a)", "(z)/1", "", "1", "(a)", 6, 40},
        {0, 1, "a", "(a)/123", "(a)", "", "a", 40, 3},
        {0, 1, "a", "(a)/1234", "(a)", "", "a", 40, 3, '\0'},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(testing::Message() << c.kind << " " << (c.key != nullptr ? c.key : "null") << " " << c.value);
        first = GuardedBuffer(c.firstSize, "o1");
        second = GuardedBuffer(c.secondSize, "o2");
        EXPECT_EQ(Edit(c.kind, c.key, c.value), c.outcome);
        EXPECT_EQ(first.Text(), c.first);
        EXPECT_EQ(second.Text(), c.second);
        EXPECT_EQ(second.ByteBeyond(), c.beyondSecond);
        EXPECT_EQ(scanned, c.scanned);
    }
}

TEST_F(Group, PutsThreeBytesOfTheKeyAlsoAfterTheEndOfTheSecondText)
{
    EXPECT_EQ(Edit(0, "xBNGy(a)", "(z)/1b"), 1);
    EXPECT_EQ(std::string(second.Data(), 8), std::string("1b\0"
                                                         "2\0(a)",
                                                         8))
        << "bytes 5 to 7 of the key go to the same places, after the end of the text as well";
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
