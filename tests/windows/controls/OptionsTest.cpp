#include "Form.h"

#include <gtest/gtest.h>

namespace
{

class Options : public testing::Test
{
protected:
    Options()
    {
        form.main.layout = {"OptionGroup .Kind", "OptionButton A", "OptionButton B", "OptionButton C"};
        form.main.values = {"A=a", "B=b", "C=c", "Kind=b"};
        form.main.output = {"(\"<%s>\", Kind)"};
    }

    bool IsChecked(const std::string& name) const { return SendMessageA(form[name], BM_GETCHECK, 0, 0) == BST_CHECKED; }
    std::string Checked() const
    {
        std::string names;
        for (const char* name : {"A", "B", "C"})
            names += IsChecked(name) ? name : "";
        return names;
    }

    std::string TabStops() const
    {
        std::string names;
        for (const char* name : {"A", "B", "C"})
            names += (GetWindowLongPtrA(form[name], GWL_STYLE) & WS_TABSTOP) != 0 ? name : "";
        return names;
    }

    Form form;
};

} // namespace

TEST_F(Options, TheGroupAnswersForItsCheckedButton)
{
    form.Then([&] { EXPECT_EQ(Checked(), "B"); });
    EXPECT_EQ(form.Ok().Open().text, "<b>");
}

TEST_F(Options, AGroupStatementBeforeTheButtonsSelectsNothing)
{
    form.main.values = {"Kind=b", "A=a", "B=b", "C=c"};
    form.Then([&] { EXPECT_EQ(Checked(), ""); });
    EXPECT_EQ(form.Ok().Open().text, "<>");
}

TEST_F(Options, AGroupWithoutAStatementStartsWithNothingSelected)
{
    form.main.values = {"A=a", "B=b", "C=c"};
    form.Then([&] { EXPECT_EQ(Checked(), ""); });
    EXPECT_EQ(form.Ok().Open().text, "<>");
}

TEST_F(Options, AGroupWithoutACheckedButtonIsEmptyAndHasContent)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.values = {"A=a", "B=b", "C=c"};
    form.main.rules = {"Edit/ACTIVE=Kind(NOTNULL)"};
    form.Then([&] { EXPECT_TRUE(IsWindowEnabled(form["Edit"])); });
    EXPECT_EQ(form.Ok().Open().text, "<>");
}

TEST_F(Options, AValueOfNoButtonChecksNothing)
{
    form.main.input = InputTo("Kind");
    form.Then([&] { EXPECT_EQ(Checked(), ""); });
    EXPECT_EQ(form.Ok().Open("other").text, "<>");
}

TEST_F(Options, SetValueOfTheGroupChecksTheButtonOfTheValue)
{
    form.main.input = InputTo("Kind");
    form.Then([&] { EXPECT_EQ(Checked(), "C"); });
    EXPECT_EQ(form.Ok().Open("c").text, "<c>");
}

TEST_F(Options, AnUnknownValueUnchecksAButton)
{
    form.main.input = InputTo("B");
    form.Then([&] { EXPECT_EQ(Checked(), ""); });
    form.Ok().Open("other");
}

TEST_F(Options, AnEmptyValueLeavesButtonsAsTheyAre)
{
    form.main.input = InputTo("Kind");
    form.Then([&] { EXPECT_EQ(Checked(), "B"); });
    form.Ok().Open("");
}

TEST_F(Options, TheValueOfAButtonIsItsOwnCheckedOrNot)
{
    form.main.output = {"(\"%s%s%s\", A, B, C)"};
    EXPECT_EQ(form.Ok().Open().text, "abc");
}

TEST_F(Options, AButtonCountsAsChangedByItsStateAndAGroupByItsText)
{
    form.main.layout.insert(form.main.layout.end(), {"TextBox First", "TextBox Second"});
    // Two buttons of one value: moving the mark between them changes no text.
    form.main.values = {"A=same", "B=same", "C=c", "Kind=same", "First=kept", "Second=kept"};
    form.main.rules = {"First/CLEAR=A", "Second/CLEAR=Kind"};
    form.Then([&] { robot::Click(form["A"]); });
    form.Then([&] { robot::Click(form["B"]); });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["First"]), "");
            EXPECT_EQ(robot::TextOf(form["Second"]), "kept");
            robot::Click(form["C"]);
        });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Second"]), ""); });
    form.Ok().Open();
}

TEST_F(Options, AButtonThatKeepsItsStateHasNotChanged)
{
    form.main.layout.insert(form.main.layout.end(), {"TextBox First", "TextBox Second"});
    form.main.values.emplace_back("First=kept");
    form.main.rules = {"First/CLEAR=A"};
    form.Then([&] { robot::ReplaceText(form["Second"], "x"); });
    form.Then(
        [&]
        {
            EXPECT_EQ(robot::TextOf(form["Second"]), "x");
            EXPECT_EQ(robot::TextOf(form["First"]), "kept");
        });
    form.Ok().Open();
}

TEST_F(Options, ADisabledGroupKeepsItsValueAndItsMarks)
{
    form.main.layout.emplace_back("CheckBox Box");
    form.main.values.insert(form.main.values.end(), {"Box=ON,yes", "Box=OFF,no", "Box=no"});
    form.main.rules = {"Kind/ACTIVE=Box(yes)"};
    form.Then(
        [&]
        {
            for (const char* name : {"A", "B", "C"})
                EXPECT_FALSE(IsWindowEnabled(form[name]));
            EXPECT_EQ(Checked(), "B");
        });
    EXPECT_EQ(form.Ok().Open().text, "<b>");
}

TEST_F(Options, AHiddenGroupCountsAsInactive)
{
    form.main.layout.insert(form.main.layout.end(), {"CheckBox Box", "TextBox Edit"});
    form.main.values.insert(form.main.values.end(), {"Box=ON,yes", "Box=OFF,no", "Box=yes"});
    form.main.rules = {"Kind/VISIBLE=Box(yes)", "Edit/ACTIVE=Kind(b)"};
    form.Then(
        [&]
        {
            EXPECT_TRUE(IsWindowVisible(form["A"]));
            EXPECT_TRUE(IsWindowEnabled(form["Edit"]));
            robot::Click(form["Box"]);
        });
    form.Then(
        [&]
        {
            EXPECT_FALSE(IsWindowVisible(form["A"]));
            EXPECT_FALSE(IsWindowVisible(form["C"]));
            EXPECT_FALSE(IsWindowEnabled(form["Edit"]));
        });
    form.Ok().Open();
}

TEST_F(Options, OfTwoOptionsOfAGroupTheButtonsGetTheFirst)
{
    static const struct
    {
        Texts words;
        bool visible;
        bool enabled;
    } cases[] = {
        {{"Kind=INACTIVE"}, true, false},
        {{"Kind=DISPLAYONLY"}, true, false},
        {{"Kind=INACTIVE", "Kind=INVISIBLE"}, false, true},
        {{"Kind=DISPLAYONLY", "Kind=HIDDEN"}, false, true},
        {{"Kind=INVISIBLE"}, false, true},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.words.front());
        form.main.values = {"A=a", "B=b", "C=c"};
        form.main.values.insert(form.main.values.end(), c.words.begin(), c.words.end());
        form.Then(
            [&]
            {
                EXPECT_EQ(IsWindowVisible(form["B"]) != FALSE, c.visible);
                EXPECT_EQ(IsWindowEnabled(form["B"]) != FALSE, c.enabled);
            });
        form.Ok().Open();
    }
}

TEST_F(Options, OnlyTheFirstButtonBeginsAGroup)
{
    form.Then(
        [&]
        {
            const auto startsGroup = [&](const char* name)
            { return (GetWindowLongPtrA(form[name], GWL_STYLE) & WS_GROUP) != 0; };
            EXPECT_TRUE(startsGroup("A"));
            EXPECT_FALSE(startsGroup("B"));
            EXPECT_FALSE(startsGroup("C"));
        });
    form.Ok().Open();
}

TEST_F(Options, ClicksMoveTheMarkWithinAGroupOnly)
{
    form.main.layout.insert(form.main.layout.end(), {"OptionGroup .Other", "OptionButton D", "OptionButton E"});
    form.main.values.insert(form.main.values.end(), {"D=d", "E=e", "Other=d"});
    form.main.output = {"(\"%s %s\", Kind, Other)"};
    form.Then([&] { robot::Click(form["C"]); });
    form.Then([&] { robot::Click(form["E"]); });
    form.Then([&] { robot::Click(form["A"]); });
    EXPECT_EQ(form.Ok().Open().text, "a e");
}

TEST_F(Options, AClickUnchecksWhatCannotBeUsedBeforeTheRulesRun)
{
    form.main.layout.insert(form.main.layout.end(), {"TextBox Edit", "TextBox Seen"});
    static const struct
    {
        const char* name;
        void (*choose)(HWND option);
    } ways[] = {
        {"click", [](HWND option) { robot::Click(option); }},
        {"press", [](HWND option) { robot::Press(option); }},
        {"space",
         [](HWND option)
         {
             SetFocus(option);
             robot::PressKey(VK_SPACE);
         }},
        {"arrow",
         [](HWND option)
         {
             SetFocus(robot::ChildAt(GetParent(option), 0));
             robot::PressKey(VK_DOWN);
         }},
    };
    for (const char* state : {"VISIBLE", "ACTIVE"})
    {
        form.main.rules = {std::string("B/") + state + "=Edit(x)", "Seen/ACTIVE=Kind(c)"};
        for (const auto& way : ways)
        {
            SCOPED_TRACE(std::string(state) + " " + way.name);
            form.Then(
                [&]
                {
                    EXPECT_EQ(Checked(), "B");
                    way.choose(form["C"]);
                });
            form.Then(
                [&]
                {
                    EXPECT_EQ(Checked(), "C");
                    EXPECT_EQ(TabStops(), "C");
                    EXPECT_TRUE(IsWindowEnabled(form["Seen"]));
                });
            EXPECT_EQ(form.Ok().Open().text, "<c>");
        }
    }
}

// The platform's exclusion passes over it.
TEST_F(Options, AValueOfAButtonLeavesTheHiddenOneChecked)
{
    form.main.values.emplace_back("B=HIDDEN");
    form.main.input = InputTo("C");
    form.Then([&] { EXPECT_EQ(Checked(), "BC"); });
    EXPECT_EQ(form.Ok().Open("c").text, "<b>");
}

TEST_F(Options, AButtonWithoutAGroupJoinsThatOfTheOuterDialog)
{
    form.main.layout.insert(form.main.layout.end(), {"PushButton Go", "TextBox Edit"});
    form.main.values = {"A=a", "B=b", "C=c", "Go=DIALOG,Inner,none,\"\""};
    form.main.rules = {"Edit/ACTIVE=Kind(lone)"};
    form.dialogs["Inner"] = {.layout = {"OptionButton Lone"}, .values = {"Lone=lone"}, .output = {"(\"x\")"}};
    HWND outer = nullptr;
    HWND edit = nullptr;
    // A command of no meaning: the outer rules run, and ask the group for its value.
    const auto runOuterRules = [&] { SendMessageA(outer, WM_COMMAND, MAKEWPARAM(0, 0x77), 1); };
    form.Then(
        [&]
        {
            outer = robot::ActiveDialog();
            edit = form["Edit"];
            EXPECT_FALSE(IsWindowEnabled(edit));
            robot::Click(form["Go"]);
        });
    form.In("Inner", [&] { robot::Click(form["Lone"]); });
    form.In("Inner",
            [&]
            {
                runOuterRules();
                EXPECT_TRUE(IsWindowEnabled(edit));
            });
    form.Ok("Inner");
    // The button is gone, and has left the group.
    form.Then(
        [&]
        {
            runOuterRules();
            EXPECT_FALSE(IsWindowEnabled(edit));
        });
    EXPECT_EQ(form.Ok().Open().text, "<>");
}

TEST_F(Options, AClickLeavesTheChoiceOfTheOuterDialog)
{
    form.main.layout.emplace_back("PushButton Go");
    form.main.values.emplace_back("Go=DIALOG,Inner,none,\"\"");
    form.dialogs["Inner"] = {.layout = {"OptionButton Lone"}, .values = {"Lone=lone"}, .output = {"(\"x\")"}};
    form.Then([&] { robot::Click(form["Go"]); });
    form.In("Inner", [&] { robot::Click(form["Lone"]); });
    form.Ok("Inner");
    EXPECT_EQ(form.Ok().Open().text, "<b>");
}

TEST_F(Options, AButtonWithoutAnyGroupStandsAlone)
{
    form.main.layout = {"OptionButton A"};
    form.main.values = {"A=a"};
    form.main.output = {"(\"%s\", A)"};
    form.Then([&] { robot::Click(form["A"]); });
    form.Then([&] { EXPECT_TRUE(IsChecked("A")); });
    EXPECT_EQ(form.Ok().Open().text, "a");
}

TEST_F(Options, TabReachesTheFirstOfAGroupWithoutAChoice)
{
    form.main.layout.insert(form.main.layout.begin(), "TextBox Edit");
    form.main.values.back() = "Kind=none";
    form.Then(
        [&]
        {
            EXPECT_EQ(TabStops(), "A");
            EXPECT_EQ(GetFocus(), form["Edit"]);
            robot::PressKey(VK_TAB);
        });
    form.Then([&] { EXPECT_EQ(GetFocus(), form["A"]); });
    EXPECT_EQ(form.Ok().Open().text, "<>");
}

TEST_F(Options, TabReachesTheFirstAgainWhenAValueUnchecksAll)
{
    for (const char* fill : {"Kind", "B"})
    {
        SCOPED_TRACE(fill);
        form.main.input = InputTo(fill);
        form.Then([&] { EXPECT_EQ(TabStops(), "A"); });
        form.Ok().Open("other");
    }
}

TEST_F(Options, TabReachesNothingButTheChosenOption)
{
    form.main.input = InputTo("Kind");
    form.main.values.back() = "Kind=none";
    static const struct
    {
        const char* value;
        const char* chosen;
        const char* other;
    } cases[] = {{"a", "A", "B"}, {"b", "B", "C"}, {"c", "C", "A"}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.value);
        form.Then(
            [&]
            {
                EXPECT_EQ(TabStops(), c.chosen);
                robot::Click(form[c.other]);
            });
        form.Then([&] { EXPECT_EQ(TabStops(), c.other); });
        form.Ok().Open(c.value);
    }
    form.main.input.clear();
    form.main.values.back() = "Kind=b";
    form.Then([&] { EXPECT_EQ(TabStops(), "B"); });
    form.Ok().Open();
}

TEST_F(Options, AGroupThatFailsItsEvaluationTakesNoFocus)
{
    form.main.layout.insert(form.main.layout.begin(), "TextBox Edit");
    form.main.evaluation = {"Kind=b:REFUSED"};
    form.Ok();
    form.Message();
    form.Then([&] { EXPECT_NE(GetFocus(), form["B"]); });
    EXPECT_EQ(form.Cancel().Open().messages, (Texts{"refused"}));
}
