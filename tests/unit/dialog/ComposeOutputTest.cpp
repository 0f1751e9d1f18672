#include "Form.h"

namespace
{

class Output : public FormTest
{
protected:
    Output()
    {
        text.layout = "TextBox 1, 2, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\nListBox 1, 2, 3, 4, .L\n"
                      "PushButton 1, 2, 3, 4, .P\nText 1, 2, 3, 4\n";
        text.input = "Start: x = End\n";
    }
};

CStringArray& Items(CStringArray& items, std::initializer_list<const char*> texts)
{
    items.SetSize(25);
    int index = 0;
    for (const char* item : texts)
        items.SetAt(index++, item);
    return items;
}

std::string Formatted(const char* format, std::initializer_list<const char*> texts = {})
{
    CStringArray items;
    return ClytDialog::FormatOutput(format, Items(items, texts)).GetString();
}

std::string Expanded(const char* text)
{
    CString expanded = text;
    ClytDialog::ExpandEscapes(expanded);
    return expanded.GetString();
}

} // namespace

TEST_F(Output, TakesTheFirstRuleThatHolds)
{
    text.output = "A(1) = (\"one\")\nA(2), B(NULL) = (\"two\")\nA(2) = (\"three\")\n(\"else\")\n";
    LiveForm& opened = Open();
    EXPECT_EQ(Compose(), "else");
    opened.Enter("A", "1");
    EXPECT_EQ(Compose(), "one");
    opened.Enter("A", "2");
    EXPECT_EQ(Compose(), "two");
    opened.Enter("B", "x");
    EXPECT_EQ(Compose(), "three");
}

TEST_F(Output, NeedsTheControlsOfItsConditionsActive)
{
    text.output = "A = (\"active\")\n(\"else\")\n";
    LiveForm& opened = Open();
    EXPECT_EQ(Compose(), "active");
    opened.FindControl("A")->SetState("ACTIVE", 0);
    EXPECT_EQ(Compose(), "else");
    // Being hidden or for display only exempts a control in the dependency rules alone.
    text.values = "A = DISPLAYONLY\n";
    Open();
    EXPECT_EQ(Compose(), "else");
}

TEST_F(Output, KnowsNoMeaningOfNotNull)
{
    text.output = "A(NOTNULL) = (\"something\")\n(\"else\")\n";
    Open().Enter("A", "x");
    EXPECT_EQ(Compose(), "else");
}

TEST_F(Output, LeavesTheTextAsItWasWhenNoRuleHolds)
{
    text.output = "A(1) = (\"one\")\n";
    LiveForm& opened = Open();
    EXPECT_EQ(Compose(), "none");
    EXPECT_EQ(Compose("missing"), "none");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(opened.GetResult(), "");
}

TEST_F(Output, RaisesAConditionOnAnUnknownControl)
{
    text.output = "Unknown(1) = (\"one\")\n";
    LiveForm& opened = Open();
    EXPECT_EQ(RaisedMessage([&] { Compose(); }), "245 'Unknown'");
    EXPECT_EQ(RaisedMessage([&] { opened.Confirm(); }), "245 'Unknown'\n246 ''");
}

TEST_F(Output, LeavesOtherFailuresOfTheConfirmationAsTheyAre)
{
    text.output = "(\"%s%x\", A)\n";
    LiveForm& opened = Open();
    EXPECT_EQ(RaisedMessage([&] { opened.Confirm(); }), missingArgument);
}

TEST_F(Output, TakesTheValuesOfControlsAndOtherWordsAsTheyStand)
{
    text.output = "(\"%s/%s/%s\", A, word, B)\n";
    LiveForm& opened = Open();
    opened.Enter("A", "a");
    EXPECT_EQ(Compose(), "a/word/");
}

TEST_F(Output, TakesTheValueOfAnInactiveControl)
{
    text.values = "A = INACTIVE\nA = text\n";
    text.output = "(\"%s\", A)\n";
    Open();
    EXPECT_EQ(Compose(), "text");
}

TEST_F(Output, JoinsTheValuesOfAList)
{
    text.values = "L: one = 1\nL: two = 2\n";
    text.output = "(\"%s\", L(\"/\"))\n$OUTPUT, three\n(\"%s\", L())\n$OUTPUT, framed\n(\"%s\", L(\"+[]\"))\n"
                  "$OUTPUT, word\n(\"%s\", Word(\"/\"))\n";
    Open();
    EXPECT_EQ(Compose(), "one/two");
    // Three blanks: one between the items, one before them and one after.
    EXPECT_EQ(Compose("three"), " one two ");
    EXPECT_EQ(Compose("framed"), "[one+two]");
    EXPECT_EQ(Compose("word"), "Word");
}

TEST_F(Output, TakesNothingOfAControlWithoutAName)
{
    text.output = "(\"<%s>\", \"\")\n$OUTPUT, all\n(\"<%s>\", \"\"())\n";
    Open();
    EXPECT_EQ(Compose(), "<>");
    EXPECT_EQ(Compose("all"), "<>");
}

TEST_F(Output, ReportsAButtonEachTimeItIsTaken)
{
    text.output = "(\"%s;%s\", P, P)\n";
    Open();
    EXPECT_EQ(Compose(), ";");
    EXPECT_EQ(Messages(), "201 '';201 '';");
}

TEST_F(Output, Takes25ItemsAndNoMore)
{
    std::string items;
    std::string result;
    for (int index = 1; index <= 25; ++index)
    {
        items += "," + std::to_string(index);
        result += std::to_string(index);
    }
    std::string format;
    for (int index = 1; index <= 25; ++index)
        format += "%s";
    text.output = "(\"" + format + "\"" + items + ")\n$OUTPUT, more\n(\"x\"" + items + ",26)\n$OUTPUT, wide\n(\"" +
                  format + "%s\"" + items + ")\n";
    Open();
    EXPECT_EQ(Compose(), result);
    EXPECT_EQ(RaisedMessage([&] { Compose("more"); }), missingArgument);
    EXPECT_EQ(RaisedMessage([&] { Compose("wide"); }), missingArgument);
}

TEST_F(Output, FillsPlacesWithoutAnItemWithNothing)
{
    text.output = "(\"%s|%s|%s\", word)\n";
    Open();
    EXPECT_EQ(Compose(), "word||");
}

TEST_F(Output, EvaluatesTheControlsItTakesWhenItIsTheResult)
{
    text.evaluation = "A = NULL: EMPTY\nB = NULL: CLASH\n";
    text.output = "(\"%s\", A)\n";
    LiveForm& opened = Open();
    EXPECT_EQ(Compose(), "");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "please fill in;");
    EXPECT_EQ(opened.Focus(), "A");
    opened.Enter("A", "x");
    EXPECT_TRUE(opened.Confirm());
    EXPECT_EQ(opened.GetResult(), "x");
}

TEST_F(Output, EvaluatesControlsThatAreTakenWithAllTheirValues)
{
    text.values = "L: one = 1\n";
    text.evaluation = "L(1) = L(1): CLASH\n";
    for (const char* item : {"L(\"/\")", "L()"})
    {
        SCOPED_TRACE(item);
        text.output = std::string("(\"%s\", ") + item + ")\n";
        LiveForm& opened = Open();
        EXPECT_FALSE(opened.Confirm());
        EXPECT_EQ(Messages(), "do not do that;");
    }
}

TEST_F(Output, ShowsTheMessageOfARuleOnAnUnknownOtherControl)
{
    text.evaluation = "A(x) = Unknown(y): CLASH\n";
    text.output = "(\"%s\", A)\n";
    LiveForm& opened = Open();
    opened.Enter("A", "x");
    opened.MoveFocusTo("B");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "do not do that;");
    EXPECT_EQ(opened.Focus(), "B") << "no control is known that the user could put right";
}

TEST_F(Output, OfTheFirstGroupIsTheParents)
{
    std::string description = text();
    description.replace(description.find("$OUTPUT"), 7, "$OUTPUT, other\n(\"first\")");
    OpenText(description);
    EXPECT_EQ(Compose(), "first");
    EXPECT_EQ(Compose("other"), "none");
}

TEST_F(Output, StoresAnEmptyParentForALeadingHeader)
{
    text.output = "$OUTPUT, second\n(\"two\")\n";
    EXPECT_EQ(Open().GetOutputMap().GetCount(), 2);
    EXPECT_EQ(Compose(), "none");
    EXPECT_EQ(Compose("second"), "two");
}

TEST_F(Output, GivesTheLastGroupASecondNameByALastHeader)
{
    text.output = "(\"one\")\n$OUTPUT, second\n(\"two\")\n$OUTPUT, third\n";
    Open();
    EXPECT_EQ(Compose(), "one");
    EXPECT_EQ(Compose("second"), "two");
    EXPECT_EQ(Compose("third"), "two");
    text.output = "$OUTPUT, second\n$OUTPUT, third\n";
    EXPECT_EQ(Open().GetOutputMap().GetCount(), 3);
}

TEST_F(Output, GroupsKnowThePlacesOfTheirHeaders)
{
    text.output = "(\"one\")\n\n  $OUTPUT, second\n(\"two\")\n";
    const ClytOutputMap& groups = Open().GetOutputMap();
    ClytOutput* group = nullptr;
    ASSERT_TRUE(groups.Lookup("parent", group));
    EXPECT_EQ(group->span.line, 15);
    ASSERT_TRUE(groups.Lookup("second", group));
    EXPECT_EQ(group->span.line, 18);
    EXPECT_EQ(group->span.column, 2);
}

TEST_F(Output, KeepsTheConditionsOfARuleWithoutAFormatForTheNext)
{
    text.output = "A(1) = (\"\")\n(\"one\")\n(\"else\")\n";
    LiveForm& opened = Open();
    EXPECT_EQ(Compose(), "else");
    opened.Enter("A", "1");
    EXPECT_EQ(Compose(), "one");
}

TEST_F(Output, KeepsTheItemsOfARuleWithoutAFormatAlsoAcrossAHeader)
{
    text.output = "(\"one\")\n(\"\", first)\n$OUTPUT, second\n(\"%s-%s\", word)\n";
    Open();
    EXPECT_EQ(Compose("second"), "first-word");
}

TEST(Format, WithoutConversionsStandsAsItIs)
{
    EXPECT_EQ(Formatted("plain. s \\n text"), "plain. s \\n text");
    EXPECT_EQ(Formatted("a\\nb"), "a\\nb");
    EXPECT_EQ(Formatted(""), "");
}

TEST(Format, TakesItemsInTheirOrder)
{
    EXPECT_EQ(Formatted("%s-%s", {"a", "b"}), "a-b");
}

TEST(Format, TakesAnItemForALiteralLetterToo)
{
    EXPECT_EQ(Formatted("is %s", {"a", "b"}), "ia b");
}

TEST(Format, CutsAnItemAtItsLimit)
{
    EXPECT_EQ(Formatted("%.2s", {"abcd"}), "ab");
    EXPECT_EQ(Formatted("%0.2s", {"abcd"}), "ab");
    EXPECT_EQ(Formatted("%.9s", {"abcd"}), "abcd");
    EXPECT_EQ(Formatted("%.s|%.xs|%.-1s", {"abcd", "abcd", "abcd"}), "||");
    EXPECT_EQ(Formatted("%.99999999999s", {"abcd"}), "abcd");
}

TEST(Format, GivesAnyOtherConversionAsItsText)
{
    EXPECT_EQ(Formatted("%5s", {"a"}), "5s");
    EXPECT_EQ(Formatted("%5s%s", {"a"}), "5sa");
    EXPECT_EQ(Formatted("%%s%s", {"a"}), "%sa");
    EXPECT_EQ(Formatted("%d%s", {"a"}), "d%s");
    EXPECT_EQ(Formatted("0%s", {"a"}), "0a");
}

TEST(Format, FailsOnAConversionWithoutItsLetter)
{
    EXPECT_EQ(RaisedMessage([] { Formatted("100%"); }), missingArgument);
    EXPECT_EQ(RaisedMessage([] { Formatted("%s %d", {"a"}); }), missingArgument);
}

TEST(Format, FailsOnALonePointBesideAConversion)
{
    EXPECT_EQ(RaisedMessage([] { Formatted("No. %s", {"a"}); }), missingArgument);
    EXPECT_EQ(RaisedMessage([] { Formatted("%s.", {"a"}); }), missingArgument);
}

TEST(Format, FailsOnThe26thItem)
{
    std::string format;
    for (int index = 0; index < 25; ++index)
        format += "%s";
    EXPECT_EQ(Formatted(format.c_str(), {"a", "b"}), "ab");
    EXPECT_EQ(RaisedMessage([&] { Formatted((format + "%s").c_str()); }), missingArgument);
    EXPECT_EQ(RaisedMessage([&] { Formatted((format + "s").c_str()); }), missingArgument);
}

TEST(Format, DropsABackslashBeforeAQuote)
{
    EXPECT_EQ(Formatted("\\\"%s\\\"", {"a"}), "\"a\"");
    EXPECT_EQ(Formatted("\\%s", {"a"}), "\\a");
    EXPECT_EQ(Formatted("%s\"", {"\\"}), "\"");
    EXPECT_EQ(Formatted("%s\"", {"a\\"}), "a\\\"");
}

TEST(Format, ExpandsEscapesInTheFinishedText)
{
    EXPECT_EQ(Formatted("a\\nb%s", {""}), "a\n b");
    EXPECT_EQ(Formatted("%sx", {"a\\tb\\"}), "a\t b\\x");
    EXPECT_EQ(Formatted("%snow", {"a\\"}), "a\n ow");
}

TEST(Escapes, BecomeALineFeedOrTabAndABlank)
{
    EXPECT_EQ(Expanded("a\\nb"), "a\n b");
    EXPECT_EQ(Expanded("a\\tb"), "a\t b");
    EXPECT_EQ(Expanded("\\n\\tx"), "\n \t x");
    EXPECT_EQ(Expanded("a\\\\nb"), "a\\\n b");
    EXPECT_EQ(Expanded("a\\xb"), "a\\xb");
}

TEST(Escapes, StayAtTheVeryEnd)
{
    EXPECT_EQ(Expanded("ab\\n"), "ab\\n");
    EXPECT_EQ(Expanded("a\\nb\\n"), "a\n b\\n");
}

TEST(Escapes, StayInATextOfFewerThanThreeCharacters)
{
    EXPECT_EQ(Expanded("\\n"), "\\n");
    EXPECT_EQ(Expanded("\\"), "\\");
    EXPECT_EQ(Expanded(""), "");
}
