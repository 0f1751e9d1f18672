#include "lytcall/Script.h"

#include <gtest/gtest.h>

using lytcall::ReadScript;
using lytcall::Step;
using lytcall::TargetKind;

namespace
{

Step OnlyStep(const std::string& text)
{
    const std::vector<Step> steps = ReadScript("s", text);
    EXPECT_EQ(steps.size(), 1U);
    return steps.empty() ? Step() : steps.front();
}

std::string Mistake(const std::string& text)
{
    try
    {
        ReadScript("my.steps", text);
    }
    catch (const lytcall::ScriptError& error)
    {
        return error.what();
    }
    return "read without complaint";
}

} // namespace

TEST(Script, ReadsOneStepALineAndKnowsItsPlace)
{
    const std::vector<Step> steps = ReadScript("s", "window \"A\"\n\n  press ok   # done\n");
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_EQ(steps[0].word, "window");
    EXPECT_EQ(steps[0].arguments, std::vector<std::string>{"A"});
    EXPECT_EQ(steps[1].line, 3);
    EXPECT_EQ(steps[1].column, 3);
}

TEST(Script, SkipsCommentsBlankLinesAndTheMarkOfUtf8)
{
    EXPECT_TRUE(ReadScript("s", "\xEF\xBB\xBF# nothing\n\n   \t\r\n").empty());
}

TEST(Script, NamesControlsInFourWays)
{
    static const struct
    {
        const char* text;
        TargetKind kind;
        const char* name;
        size_t number;
    } cases[] = {
        {"press \"OK\"", TargetKind::Caption, "OK", 1}, {"press #12", TargetKind::Number, "", 12},
        {"press edit3", TargetKind::Type, "edit", 3},   {"press ok", TargetKind::Type, "ok", 1},
        {"press focus", TargetKind::Focus, "", 1},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.text);
        const Step step = OnlyStep(c.text);
        EXPECT_EQ(step.target.kind, c.kind);
        EXPECT_EQ(step.target.name, c.name);
        EXPECT_EQ(step.target.number, c.number);
    }
}

TEST(Script, TurnsEscapesInTextsIntoCharacters)
{
    EXPECT_EQ(OnlyStep(R"(type edit1 "a\"b\\c\nd\te")").arguments.front(), "a\"b\\c\nd\te");
    EXPECT_EQ(OnlyStep("type edit1 \"a # b\"").arguments.front(), "a # b");
}

TEST(Script, TellsStatesFromTexts)
{
    EXPECT_TRUE(OnlyStep("expect edit1 enabled").isState);
    EXPECT_FALSE(OnlyStep("expect edit1 \"enabled\"").isState);
}

TEST(Script, LetsArgumentsThatHaveADefaultOut)
{
    EXPECT_TRUE(OnlyStep("answer").arguments.empty());
    EXPECT_EQ(OnlyStep("key tab 3").arguments, (std::vector<std::string>{"tab", "3"}));
    EXPECT_EQ(OnlyStep("key alt+x").arguments.front(), "alt+x");
}

TEST(Script, MistakesTellTheirPlaceAndTheWayOut)
{
    static const struct
    {
        const char* text;
        const char* message;
    } cases[] = {
        {"\n pres ok", "my.steps:2:2: error: there is no step \"pres\"; did you mean \"press\"?"},
        {"type \"A", "my.steps:1:6: error: the quoted text does not end; add a \" at its end"},
        {"type edit1", "my.steps:1:11: error: the step ends too soon; write it as: type CONTROL \"TEXT\""},
        {"type edit1 x", "my.steps:1:12: error: the text x stands without quotes; write \"x\""},
        {"press ok now", "my.steps:1:10: error: nothing may stand here; write the step as: press CONTROL"},
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

TEST(Script, ReadsEveryWordOfItsOwnHelp)
{
    for (const lytcall::StepForm& form : lytcall::StepForms())
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
    }
}
