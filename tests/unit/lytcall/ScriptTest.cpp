#include "script/Script.h"

#include <gtest/gtest.h>

using script::Player;
using script::Step;
using script::TargetKind;

namespace
{

Step OnlyStep(const std::string& text, Player player = Player::OfWindows)
{
    const std::vector<Step> steps = ReadScript("s", text, player);
    EXPECT_EQ(steps.size(), 1U);
    return steps.empty() ? Step() : steps.front();
}

std::string Mistake(const std::string& text, Player player = Player::OfWindows)
{
    try
    {
        ReadScript("my.steps", text, player);
    }
    catch (const script::FileError& error)
    {
        return error.what();
    }
    return "read without complaint";
}

} // namespace

TEST(Script, ReadsOneStepALineAndKnowsItsPlace)
{
    const std::vector<Step> steps =
        ReadScript("s", "\xEF\xBB\xBF# nothing\nwindow \"A\"\n\n  \t\r\n  press ok   # done\n", Player::OfWindows);
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_EQ(Describe(steps[0]), "window \"A\"");
    EXPECT_EQ(Describe(steps[1]), "press ok");
    EXPECT_EQ(steps[1].place, "s:5:3: error: ");
}

TEST(Script, NamesControlsInFiveWays)
{
    static const struct
    {
        const char* text;
        Player player;
        TargetKind kind;
        const char* name;
        size_t number;
    } cases[] = {
        {"press \"OK\"", Player::OfWindows, TargetKind::Caption, "OK", 1},
        {"press #12", Player::OfWindows, TargetKind::Number, "", 12},
        {"press edit3", Player::OfWindows, TargetKind::Type, "edit", 3},
        {"press ok", Player::OfWindows, TargetKind::Type, "ok", 1},
        {"press focus", Player::OfWindows, TargetKind::Focus, "", 1},
        {"press edit3", Player::OfDescriptions, TargetKind::Type, "edit", 3},
        {"press edit0", Player::OfDescriptions, TargetKind::Name, "edit0", 1},
        {"press Digits", Player::OfDescriptions, TargetKind::Name, "Digits", 1},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.text);
        const Step step = OnlyStep(c.text, c.player);
        EXPECT_EQ(step.target.kind, c.kind);
        EXPECT_EQ(step.target.name, c.name);
        EXPECT_EQ(step.target.number, c.number);
    }
}

TEST(Script, TakesTextsInQuotesAndAfterASign)
{
    static const struct
    {
        const char* text;
        std::vector<std::string> arguments;
        bool isState;
    } cases[] = {
        {R"(type edit1 "a\"b\\c\nd\te")", {"a\"b\\c\nd\te"}, false},
        {"type edit1 \"a # b\"", {"a # b"}, false},
        {"type edit1 = a # b  ", {"a # b"}, false},
        {"set edit1 =", {""}, false},
        {"set edit1=\"a\" # b", {"a"}, false},
        {"set edit1 \"a\"", {"a"}, false},
        {"expect edit1 enabled", {"enabled"}, true},
        {"expect edit1 shown", {"shown"}, true},
        {"expect edit1 \"enabled\"", {"enabled"}, false},
        {"expect edit1 = enabled", {"enabled"}, false},
        {"expect edit1 = \"a\"", {"a"}, false},
        {"answer", {}, false},
        {"press #1 #1", {}, false},
        {"key tab 3", {"tab", "3"}, false},
        {"key alt+=", {"alt+="}, false},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.text);
        const Step step = OnlyStep(c.text);
        EXPECT_EQ(step.arguments, c.arguments);
        EXPECT_EQ(step.isState, c.isState);
    }
}

TEST(Script, MistakesTellTheirPlaceAndTheWayOut)
{
    static const struct
    {
        const char* text;
        const char* message;
    } cases[] = {
        {"\n pres ok", "my.steps:2:2: error: there is no step \"pres\"; did you mean \"press\"?"},
        {"type \"A", "my.steps:1:6: error: the text has no closing quote; end it with a '\"'"},
        {"type edit1", "my.steps:1:11: error: the step ends too soon; write it as: type CONTROL \"TEXT\""},
        {"type edit1 x", "my.steps:1:12: error: the text x has no quotes; write \"x\""},
        {"set edit1 x", "my.steps:1:11: error: a '=' is missing; write: set NAME = VALUE"},
        {"press ok now", "my.steps:1:10: error: nothing may follow here; write the step as: press CONTROL"},
        {"press edit0", "my.steps:1:7: error: controls are counted from 1; write edit1 for the first"},
        {"press #", "my.steps:1:8: error: the step ends too soon; write it as: press CONTROL"},
        {"press edt2", "my.steps:1:7: error: there is no type of control \"edt\"; did you mean \"edit\"?"},
        {"key tba", "my.steps:1:5: error: there is no key \"tba\"; did you mean \"tab\"?"},
        {"key tab x", "my.steps:1:9: error: a number is due here and not \"x\"; write digits only"},
        {"expect ok enable", "my.steps:1:11: error: there is no state \"enable\"; did you mean \"enabled\"?"},
        {"answer oops", "my.steps:1:8: error: there is no button of a message \"oops\"; use one of: ok, cancel, abort, "
                        "retry, ignore, yes, no"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Mistake(c.text), c.message);
    }
}

TEST(Script, OfWhoeverKnowsTheDescriptionHasActsAlone)
{
    EXPECT_EQ(
        Mistake("show", Player::OfDescriptions),
        "my.steps:1:1: error: `show` looks at the windows of a call, which only lytcall makes; write acts alone, such "
        "as `set` and `press`");
    EXPECT_EQ(Mistake("pres Ok", Player::OfDescriptions),
              "my.steps:1:1: error: there is no act \"pres\"; did you mean \"press\"?");
}

TEST(Script, ReadsEveryWordOfItsOwnHelp)
{
    for (const script::StepForm& form : script::StepForms())
    {
        std::string text = form.word;
        for (const char* shape = form.shape; *shape != '\0'; ++shape)
        {
            static const std::string samples[] = {"c edit1", "t \"x\"", "n 1", "s enabled", "k tab", "b ok", "?"};
            for (const std::string& sample : samples)
            {
                if (sample.front() == *shape)
                    text += sample.substr(1);
            }
        }
        SCOPED_TRACE(text);
        EXPECT_EQ(OnlyStep(text).word, form.word);
        EXPECT_NE(script::Help().find(std::string("\n  ") + form.word + " "), std::string::npos);
    }
}
