#include "Form.h"

#include "unit/Readings.h"

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

std::string Formatted(const std::string& format, std::initializer_list<const char*> texts)
{
    CStringArray items;
    items.SetSize(25);
    int index = 0;
    for (const char* text : texts)
        items.SetAt(index++, text);
    std::string formatted;
    const std::string message =
        RaisedMessage([&] { formatted = ClytDialog::FormatOutput(format.c_str(), items).GetString(); });
    return message == "nothing was raised" ? formatted : message;
}

// With "a" as the first item, and "abcd" as the second.
std::string FormattedItems(const std::string& format)
{
    return Formatted(format, {"a", "abcd"});
}

std::string Expanded(const std::string& text)
{
    CString expanded = text.c_str();
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

TEST_F(Output, LeavesTheTextAsItWasWhenNoRuleHolds)
{
    text.output = "A(1), A(NOTNULL) = (\"one\")\n";
    LiveForm& opened = Open();
    EXPECT_EQ(Compose(), "none");
    EXPECT_EQ(Compose("missing"), "none");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(opened.GetResult(), "");
    opened.Enter("A", "1");
    EXPECT_EQ(Compose(), "none") << "NOTNULL means nothing here";
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

TEST_F(Output, TakesTheValuesOfControlsAndOtherWordsAsTheyAre)
{
    text.values = "A = INACTIVE\nA = text\nL: one = 1\nL: two = 2\n";
    ExpectReadings("dialog/output.cases", "Rules",
                   [this](const std::string& rule)
                   {
                       text.output = rule + "\n";
                       Open();
                       return Compose();
                   });
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

TEST(Format, TakesAnItemForEachConversionAndEachLetterS)
{
    ExpectReadings("dialog/output.cases", "Format", FormattedItems);
    EXPECT_EQ(Formatted("%s\"", {"\\"}), "\"");
    EXPECT_EQ(Formatted("%s\"", {"a\\"}), "a\\\"");
    // Escapes are expanded in the finished text.
    EXPECT_EQ(Formatted("a\\nb%s", {""}), "a\n b");
    EXPECT_EQ(Formatted("%sx", {"a\\tb\\"}), "a\t b\\x");
    EXPECT_EQ(Formatted("%snow", {"a\\"}), "a\n ow");
    std::string most;
    for (int index = 0; index < 25; ++index)
        most += "%s";
    EXPECT_EQ(Formatted(most, {"a", "b"}), "ab");
    EXPECT_EQ(Formatted(most + "%s", {}), missingArgument);
    EXPECT_EQ(Formatted(most + "s", {}), missingArgument);
}

TEST(Escapes, BecomeALineFeedOrTabAndABlankButAtTheVeryEnd)
{
    ExpectReadings("dialog/output.cases", "Escapes", Expanded);
}
