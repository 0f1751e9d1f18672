#include "Controls.h"

#include "model/ClytScanRule.h"

#include <gtest/gtest.h>

namespace
{

class ControlFill : public testing::Test
{
protected:
    std::string Apply(const char* piece)
    {
        fill.Bind(controls.map);
        fill.Apply(piece);
        return controls.TakeLog();
    }

    ControlFill()
    {
        controls.Add("A");
        fill.controlName = "A";
    }

    Controls controls;
    ClytControlFill fill;
};

class FillRules : public testing::Test
{
protected:
    // A rule that fills the control of that name; the control is made.
    void Rule(const char* name, std::initializer_list<const char*> pieces = {})
    {
        controls.Add(name);
        ClytConditionFill& added = rule.rules.AddTail(std::make_unique<ClytConditionFill>());
        for (const char* piece : pieces)
            added.values.AddTail(piece);
        added.fills.AddTail(std::make_unique<ClytControlFill>()).controlName = name;
    }
    std::string Apply(const char* piece)
    {
        rule.Bind(controls.map);
        rule.ApplyFills(piece);
        return controls.TakeLog();
    }

    Controls controls;
    ClytScanRule rule;
};

} // namespace

TEST_F(ControlFill, DoesWhatItsWordSays)
{
    static const struct
    {
        const char* action;
        const char* value; // fixed, instead of the piece
        const char* log;
    } cases[] = {
        {"", "", "A.set(x) "},     {"fill", "", "A.set(x) "},    {"", "fixed", "A.set(fixed) "},
        {"FILL", "", "A.fill() "}, {"ADD", "", "A.add(,x,00) "}, {"MODIFY", "", "A.replace(x) "},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.log);
        fill.action = c.action;
        fill.value = c.value;
        EXPECT_EQ(Apply("x"), c.log);
    }
}

TEST_F(ControlFill, JoinsItsOperandsAndALineFeedToTheSeparators)
{
    fill.action = "CONCAT";
    fill.operands = {"a", "b", "c"};
    EXPECT_EQ(Apply("x"), "A.values(x\n,abc\n) ");
    fill.operands = {};
    EXPECT_EQ(Apply(""), "A.values(\n,\n) ");
}

TEST_F(ControlFill, PassesOverAnUnknownControl)
{
    fill.controlName = "B";
    EXPECT_EQ(Apply("x"), "");
}

TEST_F(FillRules, AllApplyWithoutConditions)
{
    Rule("A");
    Rule("B");
    EXPECT_EQ(Apply("x"), "A.set(x) B.set(x) ");
}

TEST_F(FillRules, TakeTheNextRuleAlongWhenTheyDoNotHold)
{
    Rule("A", {"1", "2"});
    Rule("B");
    Rule("C");
    EXPECT_EQ(Apply("2"), "A.set(2) B.set(2) C.set(2) ");
    EXPECT_EQ(Apply("x"), "C.set(x) ");
    EXPECT_EQ(Apply(""), "C.set() ");
}

TEST_F(FillRules, KnowNoMeaningOfNull)
{
    Rule("A", {"NULL"});
    Rule("B");
    EXPECT_EQ(Apply(""), "");
    EXPECT_EQ(Apply("NULL"), "A.set(NULL) B.set(NULL) ");
}

TEST_F(FillRules, MayEndWithARuleThatDoesNotHold)
{
    Rule("A");
    Rule("B", {"1"});
    EXPECT_EQ(Apply("x"), "A.set(x) ");
}

TEST_F(FillRules, LeaveOutAFillWithoutAControl)
{
    controls.Add("");
    rule.rules.AddTail(std::make_unique<ClytConditionFill>()).fills.AddTail(std::make_unique<ClytControlFill>());
    EXPECT_EQ(Apply("x"), "");
}
