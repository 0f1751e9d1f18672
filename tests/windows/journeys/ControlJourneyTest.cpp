// Controls of every type word, driven as a user drives them.
#include "Journey.h"

#include <gtest/gtest.h>

namespace
{

Sections With(const std::string& layout, const std::string& values, const std::string& output)
{
    Sections sections;
    sections.layout = layout + "OKButton 10, 150, 60, 20, .Ok\nCancelButton 80, 150, 60, 20, .Cancel\n";
    sections.values = values;
    sections.output = output + "\n";
    return sections;
}

JourneyResult Confirm(const Sections& sections, const std::string& key = "",
                      const std::function<void(HWND)>& before = nullptr)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    if (before != nullptr)
        journey.Steps().On("Journey", before);
    journey.Steps().On("Journey", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDOK)); });
    return journey.Symbol(key);
}

} // namespace

TEST(ListJourney, ShowsTextsAndGivesValues)
{
    const Sections sections =
        With("ListBox 10, 10, 100, 60, .L\n", "L = ONE, v1\nL = PRESS, v2\nL = AGAIN, v3\n", "(\"%s\", L)");
    std::vector<std::string> items;
    int selected = -2;
    const JourneyResult result = Confirm(sections, "",
                                         [&](HWND)
                                         {
                                             items = robot::ItemsOf(Journey::Control(0));
                                             selected = robot::SelectedItemOf(Journey::Control(0));
                                             robot::SelectItem(Journey::Control(0), 2);
                                         });
    EXPECT_EQ(items, (std::vector<std::string>{"no value present", "Press me", "Once more"}));
    EXPECT_EQ(selected, 0);
    EXPECT_EQ(result.first, "v3");
}

TEST(ListJourney, ReachesOnlyTheFirstOfThreeByValue)
{
    Sections sections =
        With("ListBox 10, 10, 100, 60, .L\n", "L = PRESS, v1\nL = PRESS, v2\nL = AGAIN, v3\n", "(\"<%s>\", L)");
    sections.input = "Start: (Rest, End = L\n";
    EXPECT_EQ(Confirm(sections, "v1").first, "<v1>");
    EXPECT_EQ(Confirm(sections, "v3").first, "<>");
}

TEST(ListJourney, JoinsAllItems)
{
    const Sections sections =
        With("ListBox 10, 10, 100, 60, .L\n", "L = PRESS, v1\nL = NOKEY, v2\n", "(\"%s\", L(\"/[]\"))");
    EXPECT_EQ(Confirm(sections).first, "[Press me/NOKEY]");
}

TEST(ComboJourney, TypedTextIsItsValue)
{
    const Sections sections = With("ComboBox 10, 10, 100, 80, .C\n", "C = PRESS, v1\nC = AGAIN, v2\n", "(\"%s\", C)");
    EXPECT_EQ(Confirm(sections).first, "v1");
    EXPECT_EQ(Confirm(sections, "", [](HWND) { robot::ReplaceText(Journey::Control(0), "typed"); }).first, "typed");
}

TEST(ComboJourney, DropListSelectsByValue)
{
    Sections sections = With("DropListBox 10, 10, 100, 80, .C\n", "C = PRESS, v1\nC = AGAIN, v2\n", "(\"%s\", C)");
    sections.input = "Start: (Rest, End = C\n";
    EXPECT_EQ(Confirm(sections, "v2").first, "v2");
    EXPECT_EQ(Confirm(sections, "none").first, "v1");
}

TEST(CheckBoxJourney, GivesItsWords)
{
    Sections sections =
        With("CheckBox 10, 10, 100, 20, \"LABEL\", .C\n", "C = ON, yes\nC = OFF, no\nC = DEF, no\n", "(\"%s\", C)");
    EXPECT_EQ(Confirm(sections).first, "no");
    EXPECT_EQ(Confirm(sections, "", [](HWND) { robot::Press(Journey::Control(0)); }).first, "yes");
    sections.input = "Start: (Rest, End = C\n";
    EXPECT_EQ(Confirm(sections, "ON").first, "yes");
}

TEST(CheckBoxJourney, BadDefaultIsMessage236)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(With("CheckBox 10, 10, 100, 20, \"LABEL\", .C\n",
                                                      "C = ON, yes\nC = OFF, no\nC = DEF, x\n", "(\"x\")")));
    journey.Steps().AnswerMessage();
    const JourneyResult result = journey.Symbol("");
    EXPECT_EQ(result.code, 0);
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0], "238\nbad default 'C'");
}

TEST(OptionJourney, GroupAnswersForItsButtons)
{
    const std::string layout = "OptionGroup .G\nOptionButton 10, 10, 100, 20, \"PRESS\", .G1\n"
                               "OptionButton 10, 40, 100, 20, \"AGAIN\", .G2\n";
    const Sections sections = With(layout, "G1 = one\nG2 = two\nG = two\n", "(\"<%s>\", G)");
    EXPECT_EQ(Confirm(sections).first, "<two>");
    EXPECT_EQ(Confirm(sections, "", [](HWND) { robot::Press(Journey::Control(0)); }).first, "<one>");
    EXPECT_EQ(Confirm(With(layout, "G = two\nG1 = one\nG2 = two\n", "(\"<%s>\", G)")).first, "<>");
}

TEST(PushButtonJourney, AddsTheSelectedItem)
{
    const Sections sections =
        With("ListBox 10, 10, 100, 60, .From\nListBox 120, 10, 100, 60, .To\n"
             "PushButton 10, 90, 60, 20, \"PRESS\", .Add\n",
             "From = PRESS, v1\nFrom = AGAIN, v2\nTo = LABEL, t1\nAdd = ADD, From, To\n", "(\"%s\", To(\"/\"))");
    const JourneyResult result = Confirm(sections, "",
                                         [](HWND)
                                         {
                                             robot::SelectItem(Journey::Control(0), 1);
                                             robot::Click(Journey::Control(2));
                                         });
    EXPECT_EQ(result.first, "A label/Once more");
}

TEST(PushButtonJourney, TogglesItsCaption)
{
    const Sections sections = With("TextBox 10, 10, 100, 20, .E\nPushButton 10, 90, 60, 20, \"PRESS\", .B\n",
                                   "B = VISIBLE, E, AGAIN\n", "(\"x\")");
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    std::vector<std::string> seen;
    const auto look = [&](HWND)
    {
        seen.push_back(robot::TextOf(Journey::Control(1)) + (IsWindowVisible(Journey::Control(0)) ? "+" : "-"));
        robot::Click(Journey::Control(1));
    };
    journey.Steps()
        .On("Journey", look)
        .On("Journey", look)
        .On("Journey", look)
        .On("Journey", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDOK)); });
    journey.Symbol("");
    EXPECT_EQ(seen, (std::vector<std::string>{"Press me+", "Once more-", "Press me+"}));
}

TEST(PushButtonJourney, NestedDialogTakesAndGives)
{
    Sections outer = With("TextBox 10, 10, 100, 20, .E\nPushButton 10, 90, 60, 20, \"PRESS\", .B\n",
                          "E = start\nB = DIALOG, Inner, back, out\n", "(\"%s\", E)");
    outer.input += "$INPUT, back\nStart: (Rest, End = E\n";
    outer.output += "$OUTPUT, out\n(\"%s!\", E)\n";
    Sections inner = With("TextBox 10, 10, 100, 20, .F\n", "", "(\"%s?\", F)");
    inner.input = "Start: (Rest, End = F\n";
    inner.begin = "Begin Dialog Box 200, 200, \"LABEL\", .Main\n";

    Journey journey;
    journey.Describe("lytInSym.dlg", Description(outer));
    journey.Describe("Inner.dlg", Description(inner));
    std::string seen;
    journey.Steps()
        .On("Journey", [](HWND) { robot::Click(Journey::Control(1)); })
        .On("A label",
            [&](HWND dialog)
            {
                seen = robot::TextOf(Journey::Control(0));
                robot::Press(GetDlgItem(dialog, IDOK));
            })
        .On("Journey", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDOK)); });
    const JourneyResult result = journey.Symbol("");
    EXPECT_EQ(seen, "start!");
    EXPECT_EQ(result.first, "start!?");
}

TEST(RuleJourney, StateRulesSwitchBothWays)
{
    Sections sections = With("TextBox 10, 10, 100, 20, .A\nTextBox 10, 40, 100, 20, .B\n", "", "(\"x\")");
    sections.dependances = "B/ACTIVE = A(NOTNULL)\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    std::vector<int> enabled;
    const auto look = [&](const char* text)
    {
        return [&enabled, text](HWND)
        {
            enabled.push_back(IsWindowEnabled(Journey::Control(1)));
            robot::ReplaceText(Journey::Control(0), text);
        };
    };
    journey.Steps()
        .On("Journey", look("full"))
        .On("Journey", look(""))
        .On("Journey", look("again"))
        .On("Journey", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDOK)); });
    journey.Symbol("");
    EXPECT_EQ(enabled, (std::vector<int>{0, 1, 0}));
}
