#include "Controls.h"

#include "model/ClytInputPart.h"
#include "support/ErrorTexts.h"

#include <gtest/gtest.h>

namespace
{

// An input part under construction: each of its statements puts its piece into a control of its own name.
class Scan : public testing::Test
{
protected:
    // B and C take the rest of the text, unless a test says otherwise.
    Scan()
    {
        Cut("B", {"|", "End"});
        Cut("C", {"|", "End"});
    }

    ClytDialogInput& State(const char* name)
    {
        auto statement = std::make_unique<ClytDialogInput>();
        statement->name = name;
        ClytDialogInput& added = *statement;
        part.Add(std::move(statement));
        if (!controls.map.Lookup(name, m_unused))
            controls.Add(name);
        ClytConditionFill& rule = added.scanRule.rules.AddTail(std::make_unique<ClytConditionFill>());
        rule.fills.AddTail(std::make_unique<ClytControlFill>()).controlName = name;
        return added;
    }
    // A state that cuts at separators: text, target, text, target ...
    void Cut(const char* name, std::initializer_list<const char*> entries)
    {
        ClytScan& scan = State(name).scanRule.scan;
        for (auto entry = entries.begin(); entry != entries.end(); entry += 2)
            scan.AddSeparator(entry[0], entry[1]);
    }
    void CutLength(const char* name, int length, const char* target)
    {
        State(name).scanRule.scan.SetFixedLength(length, target);
    }
    void Jump(const char* name, const char* target) { State(name).falseTarget.name = target; }
    // That many jumps in a row, from the state of that name to the one with the number after its name.
    void JumpUpTo(const std::string& name, int count)
    {
        std::string from = name;
        for (int number = 1; number <= count; ++number)
        {
            const std::string to = name + " " + std::to_string(number);
            Jump(from.c_str(), to.c_str());
            from = to;
        }
    }
    // What the run does, from the state of that name.
    std::string Run(const CString& text, const char* start = "Start")
    {
        part.Bind(controls.map);
        part.Run(text, start);
        return controls.TakeLog();
    }

    const ErrorTexts texts;
    Controls controls;
    ClytInputPart part;

private:
    ClytControl* m_unused = nullptr;
};

} // namespace

TEST_F(Scan, GoesOnAfterASeparator)
{
    Cut("Start", {",", "B"});
    EXPECT_EQ(Run("a,b"), "Start.set(a) B.set(b) ");
}

TEST_F(Scan, GoesToRestAtTheEndOfTheText)
{
    Cut("Start", {",", "B", "Rest", "C"});
    Cut("C", {";", "End"});
    EXPECT_EQ(Run("abc"), "Start.set(abc) C.set() ");
}

TEST_F(Scan, TakesTheLettersOfRestAsASeparator)
{
    Cut("Start", {",", "B", "Rest", "C"});
    Cut("C", {"Rest", "End"});
    EXPECT_EQ(Run("abRestcd"), "Start.set(ab) C.set(cd) ");
}

TEST_F(Scan, WithoutARestEntryEndsWithTheText)
{
    Cut("Start", {",", "B"});
    Cut("B", {",", "Start"});
    EXPECT_EQ(Run("a"), "Start.set(a) ");
}

TEST_F(Scan, TakesTheFirstSeparatorThatFits)
{
    Cut("Start", {"->", "Long", "-", "Short"});
    EXPECT_EQ(Run("a->b"), "Start.set(a) ");
    Cut("Start", {"-", "Short", "->", "Long"});
    Cut("Long", {"|", "End"});
    Cut("Short", {"|", "End"});
    EXPECT_EQ(Run("a->b"), "Start.set(a) Short.set(>b) ");
}

TEST_F(Scan, KeepsAClosingBracketThatClosesOneOfItsPiece)
{
    Cut("Start", {")", "B"});
    EXPECT_EQ(Run("a(b)c)d"), "Start.set(a(b)c) B.set(d) ");
    EXPECT_EQ(Run("a((b)c)d)e"), "Start.set(a((b)c)d) B.set(e) ");
}

TEST_F(Scan, EndsAtAClosingBracketWithoutAnOpeningOne)
{
    Cut("Start", {")", "B"});
    EXPECT_EQ(Run("a)b"), "Start.set(a) B.set(b) ");
}

TEST_F(Scan, EndsAtTheBracketThatClosesOneOfAnEarlierPiece)
{
    Cut("Start", {"(", "B"});
    Cut("B", {",", "B2", ")", "C"});
    Cut("B2", {",", "End", ")", "C"});
    EXPECT_EQ(Run("x(a,b)y"), "Start.set(x) B.set(a) B2.set(b) C.set(y) ");
}

TEST_F(Scan, KeepsAClosingBracketWhileAnEarlierOneStaysOpen)
{
    // Two brackets are open when B begins, so the first closing one is content and the second ends the piece.
    CutLength("Start", 2, "B");
    Cut("B", {")", "C"});
    EXPECT_EQ(Run("((a)b)c"), "Start.set((() B.set(a)b) C.set(c) ");
}

TEST_F(Scan, CountsAClosingBracketBelowZero)
{
    // The first piece leaves the count at -1, and so of the two brackets opened after it only one counts as open.
    Cut("Start", {")", "Two"});
    CutLength("Two", 2, "B");
    Cut("B", {")", "C"});
    EXPECT_EQ(Run("a)((b)c"), "Start.set(a) Two.set((() B.set(b) C.set(c) ");
}

TEST_F(Scan, CountsTheThreeKindsOfBracketsApart)
{
    Cut("Start", {"}", "B", "]", "C"});
    EXPECT_EQ(Run("a{b[c}d]e}f"), "Start.set(a{b[c}d]e) B.set(f) ");
    EXPECT_EQ(Run("a{b]f"), "Start.set(a{b) C.set(f) ");
}

TEST_F(Scan, CountsOnlyTheFirstCharacterOfASeparator)
{
    Cut("Start", {",((", "B"});
    Cut("B", {")", "C"});
    EXPECT_EQ(Run("a,((b)c"), "Start.set(a) B.set(b) C.set(c) ");
}

TEST_F(Scan, LetsOtherSeparatorsEndAPieceInsideBrackets)
{
    Cut("Start", {",", "B"});
    EXPECT_EQ(Run("f(a,b)"), "Start.set(f(a) B.set(b)) ");
}

TEST_F(Scan, StartsEachRunWithNoOpenBracket)
{
    Cut("Start", {")", "B"});
    EXPECT_EQ(Run("((((a"), "Start.set(((((a) ");
    EXPECT_EQ(Run("a)b"), "Start.set(a) B.set(b) ");
}

TEST_F(Scan, DropsTheQuotesOfAPieceThatBeginsWithThem)
{
    Cut("Start", {",", "B"});
    EXPECT_EQ(Run("\"a,b\",c"), "Start.set(a,b) B.set(c) ");
}

TEST_F(Scan, KeepsTheQuotesInsideAPiece)
{
    Cut("Start", {",", "B"});
    EXPECT_EQ(Run("x\"a,b\",c"), "Start.set(x\"a,b\") B.set(c) ");
    EXPECT_EQ(Run("\"a\"\"b\",c"), "Start.set(a\"b\") B.set(c) ");
}

TEST_F(Scan, CountsNoBracketsInsideQuotes)
{
    Cut("Start", {")", "B"});
    EXPECT_EQ(Run("\"((\")x"), "Start.set((() B.set(x) ");
}

TEST_F(Scan, EndsAnOpenQuoteWithTheText)
{
    Cut("Start", {",", "B", "Rest", "C"});
    EXPECT_EQ(Run("\"a,b"), "Start.set(a,b) C.set() ");
    EXPECT_EQ(Run("x\"a,b"), "Start.set(x\"a,b) C.set() ");
    EXPECT_EQ(Run("\""), "Start.set() C.set() ");
}

TEST_F(Scan, LooksForSeparatorsBeforeQuotes)
{
    Cut("Start", {"\"", "B"});
    EXPECT_EQ(Run("a\"b"), "Start.set(a) B.set(b) ");
}

TEST_F(Scan, TakesTheRestTargetOfAnEmptyText)
{
    Cut("Start", {",", "B", "Rest", "C"});
    EXPECT_EQ(Run(""), "Start.set() C.set() ");
}

TEST_F(Scan, OfAFixedLengthStopsAtTheEndOfTheText)
{
    CutLength("Start", 5, "B");
    EXPECT_EQ(Run("abc"), "Start.set(abc) B.set() ");
    EXPECT_EQ(Run("abcdefg"), "Start.set(abcde) B.set(fg) ");
}

TEST_F(Scan, OfANegativeLengthTakesNothing)
{
    CutLength("Start", -3, "B");
    EXPECT_EQ(Run("abc"), "Start.set() B.set(abc) ");
}

TEST_F(Scan, OfAFixedLengthKnowsNoQuotes)
{
    CutLength("Start", 3, "B");
    EXPECT_EQ(Run("\"a\"b"), "Start.set(\"a\") B.set(b) ");
}

TEST_F(Scan, EndsAtEndOrAnUnknownName)
{
    Cut("Start", {",", "End"});
    Cut("End", {",", "Start"});
    EXPECT_EQ(Run("a,b"), "Start.set(a) ");
    Cut("Start", {",", "Nowhere"});
    EXPECT_EQ(Run("a,b"), "Start.set(a) ");
    EXPECT_EQ(Run("a,b", "Nowhere"), "");
}

TEST_F(Scan, DoesNothingWithoutStatements)
{
    ClytInputPart empty;
    empty.Run("a,b", "Start");
    EXPECT_EQ(controls.TakeLog(), "");
}

TEST_F(Scan, ChoosesATargetByItsConditions)
{
    ClytDialogInput& start = State("Start");
    start.trueTarget.name = "Yes";
    start.falseTarget.name = "No";
    AddCondition(start.conditions, "A", {"1"});
    AddCondition(start.conditions, "B", {"2"});
    Cut("Yes", {"|", "End"});
    Cut("No", {"|", "End"});
    controls.Add("A", "0");
    controls.Add("B", "2");
    EXPECT_EQ(Run("x"), "Yes.set(x) ");
    controls.Add("B", "0");
    EXPECT_EQ(Run("x"), "No.set(x) ");
}

TEST_F(Scan, JumpsWithoutConditions)
{
    Jump("Start", "B");
    EXPECT_EQ(Run("x"), "B.set(x) ");
}

TEST_F(Scan, WithAnEmptySeparatorConsumesNothing)
{
    Cut("Start", {"", "B"});
    EXPECT_EQ(Run("x"), "Start.set() B.set(x) ");
}

TEST_F(Scan, RaisesACircleOfStatementsThatConsumesNothing)
{
    Jump("Start", "B");
    Jump("B", "Start");
    EXPECT_EQ(RaisedMessage([&] { Run("text"); }), "The input statements go round in a circle.\n206 ''");
    controls.TakeLog();
    Cut("B", {",", "Start", "Rest", "Start"});
    EXPECT_EQ(RaisedMessage([&] { Run("a,b"); }), "The input statements go round in a circle.\n206 ''");
    // A run after it starts afresh.
    controls.TakeLog();
    Cut("B", {")", "End"});
    EXPECT_EQ(Run("a)"), "B.set(a) ");
}

TEST_F(Scan, RaisesThe10000thChangeOfStateInARowThatConsumesNothing)
{
    JumpUpTo("Start", 9999);
    Cut("Start 9999", {",", "End"});
    EXPECT_EQ(Run("a,"), "Start 9999.set(a) ");
    Jump("Start 9999", "Start 10000");
    Cut("Start 10000", {",", "End"});
    EXPECT_EQ(RaisedMessage([&] { Run("a,"); }), "The input statements go round in a circle.\n206 ''");
}

TEST_F(Scan, CountsChangesOfStateFromZeroOnceTextIsConsumed)
{
    JumpUpTo("Start", 9999);
    Cut("Start 9999", {",", "Again"});
    JumpUpTo("Again", 9999);
    Cut("Again 9999", {",", "End"});
    EXPECT_EQ(Run("a,b,"), "Start 9999.set(a) Again 9999.set(b) ");
}

TEST_F(Scan, MayGoRoundAsLongAsItConsumesText)
{
    Cut("Start", {",", "Start", "Rest", "End"});
    std::string text;
    std::string pieces;
    for (int index = 0; index < 20000; ++index)
    {
        text += "x,";
        pieces += "Start.set(x) ";
    }
    EXPECT_EQ(Run(text.c_str()), pieces + "Start.set() ");
}

TEST_F(Scan, WorksOnItsOwnCopyOfTheText)
{
    Cut("Start", {",", "B"});
    CString text = "a,b";
    Run(text);
    EXPECT_EQ(text, "a,b");
}

TEST_F(Scan, AppliesTheFillsOfACutThatEndedWithTheText)
{
    ClytScanRule& rule = State("Start").scanRule;
    rule.scan.SetFixedLength(1, "End");
    ClytConditionFill& more = rule.rules.AddTail(std::make_unique<ClytConditionFill>());
    more.fills.AddTail(std::make_unique<ClytControlFill>()).controlName = "Unknown";
    EXPECT_EQ(Run("ab"), "Start.set(a) ");
}
