#include "Controls.h"

#include "model/ClytConditionTest.h"
#include "model/ClytControlDep.h"

#include <gtest/gtest.h>

namespace
{

ClytCtrlValList& Fill(ClytCtrlValList& list, std::initializer_list<const char*> values)
{
    for (const char* value : values)
        list.GetValues().AddTail(value);
    return list;
}

int IsSatisfied(ClytCtrlValList& list, const Controls& controls)
{
    list.Bind(controls.map);
    return lytTest(list, ClytRuleKind::Input) == ClytTested::Holds ? 1 : 0;
}

int Contains(std::initializer_list<const char*> values, const char* value)
{
    ClytCtrlValList list;
    return Fill(list, values).Contains(value);
}

class DependencyRule : public testing::Test
{
protected:
    ClytControlDep& Bound()
    {
        rule.Bind(controls.map);
        return rule;
    }

    Controls controls;
    ClytControlDep rule;
};

} // namespace

TEST(ValueList, ContainsAnEmptyValueByTheWordNull)
{
    EXPECT_EQ(Contains({"NULL"}, ""), 1);
    EXPECT_EQ(Contains({"NULL"}, "x"), 0);
    EXPECT_EQ(Contains({"a", "NULL"}, ""), 1);
}

TEST(ValueList, KnowsNullInUpperCaseOnly)
{
    EXPECT_EQ(Contains({"null"}, ""), 0);
    EXPECT_EQ(Contains({"NULL "}, ""), 0);
}

TEST(ValueList, ContainsAnEmptyValueByAnEmptyText)
{
    EXPECT_EQ(Contains({""}, ""), 1);
}

TEST(ValueList, ComparesByteForByte)
{
    EXPECT_EQ(Contains({"abc"}, "abc"), 1);
    EXPECT_EQ(Contains({"abc"}, "Abc"), 0);
    EXPECT_EQ(Contains({"NULL"}, "NULL"), 1);
    EXPECT_EQ(Contains({}, ""), 0);
}

TEST(ValueList, IsSatisfiedByTheControlsValueWithoutAMeaningOfNull)
{
    Controls controls;
    controls.Add("A", "x");
    controls.Add("Empty");
    ClytCtrlValList list("A");
    EXPECT_EQ(IsSatisfied(list, controls), 0);
    EXPECT_EQ(IsSatisfied(Fill(list, {"y", "x"}), controls), 1);
    list.SetName("Empty");
    EXPECT_EQ(IsSatisfied(Fill(list, {"NULL"}), controls), 0);
    EXPECT_EQ(IsSatisfied(Fill(list, {""}), controls), 1);
    list.SetName("Unknown");
    EXPECT_EQ(IsSatisfied(list, controls), 0);
}

TEST(ValueList, CopiesNameAndValues)
{
    ClytCtrlValList from("A");
    Fill(from, {"1", "2"});
    ClytCtrlValList to("B");
    Fill(to, {"3"});
    to.CopyFrom(from);
    to.CopyFrom(to);
    EXPECT_EQ(to.GetName(), "A");
    EXPECT_EQ(to.GetValues().GetCount(), 2);
}

TEST_F(DependencyRule, HoldsWithoutConditions)
{
    EXPECT_EQ(Bound().AllHold(), 1);
}

TEST_F(DependencyRule, HoldsWhenEveryControlHasOneOfItsValues)
{
    controls.Add("A", "1");
    controls.Add("B", "2");
    AddCondition(rule.conditions, "A", {"0", "1"});
    AddCondition(rule.conditions, "B", {"2"});
    EXPECT_EQ(Bound().AllHold(), 1);
    controls.Add("B", "3");
    EXPECT_EQ(Bound().AllHold(), 0);
}

TEST_F(DependencyRule, PassesOverUnknownControls)
{
    AddCondition(rule.conditions, "Unknown", {"1"});
    EXPECT_EQ(Bound().AllHold(), 1);
}

TEST_F(DependencyRule, FailsOnADisabledControl)
{
    RecordingControl& control = controls.Add("A");
    AddCondition(rule.conditions, "A");
    EXPECT_EQ(Bound().AllHold(), 1);
    control.isActive = 0;
    EXPECT_EQ(Bound().AllHold(), 0);
}

TEST_F(DependencyRule, ExemptsADisabledControlThatIsHiddenOrDisplayOnly)
{
    for (const char* option : {"HIDDEN", "DISPLAYONLY"})
    {
        SCOPED_TRACE(option);
        RecordingControl& control = controls.Add("A", "x");
        control.isActive = 0;
        control.Exempt(option);
        rule.conditions.RemoveAll();
        AddCondition(rule.conditions, "A", {"x"});
        EXPECT_EQ(Bound().AllHold(), 1);
        control.value = "y";
        EXPECT_EQ(Bound().AllHold(), 0);
    }
    RecordingControl& control = controls.Add("A", "x");
    control.isActive = 0;
    control.Exempt("INACTIVE");
    EXPECT_EQ(Bound().AllHold(), 0);
}

TEST_F(DependencyRule, EndsAtNotNullWithoutLookingAtLaterConditions)
{
    RecordingControl& control = controls.Add("A", "something");
    controls.Add("B", "2");
    AddCondition(rule.conditions, "A", {"NOTNULL"});
    AddCondition(rule.conditions, "B", {"wrong"});
    EXPECT_EQ(Bound().AllHold(), 1);
    control.value.Empty();
    EXPECT_EQ(Bound().AllHold(), 0);
}

TEST_F(DependencyRule, KnowsNotNullAsTheLastValueOnly)
{
    controls.Add("A", "something");
    AddCondition(rule.conditions, "A", {"NOTNULL", "x"});
    EXPECT_EQ(Bound().AllHold(), 0);
    rule.conditions.RemoveAll();
    AddCondition(rule.conditions, "A", {"x", "NOTNULL"});
    EXPECT_EQ(Bound().AllHold(), 1);
    rule.conditions.RemoveAll();
    AddCondition(rule.conditions, "A", {"notnull"});
    EXPECT_EQ(Bound().AllHold(), 0);
}

TEST_F(DependencyRule, MatchesAnEmptyControlByNull)
{
    controls.Add("A");
    AddCondition(rule.conditions, "A", {"NULL"});
    EXPECT_EQ(Bound().AllHold(), 1);
}

TEST_F(DependencyRule, SeesAnyChangedControl)
{
    controls.Add("A");
    RecordingControl& control = controls.Add("B");
    EXPECT_EQ(Bound().AnyChanged(), 0);
    AddCondition(rule.conditions, "A");
    AddCondition(rule.conditions, "B");
    EXPECT_EQ(Bound().AnyChanged(), 0);
    control.isChanged = 7;
    EXPECT_EQ(Bound().AnyChanged(), 1);
}

TEST_F(DependencyRule, SeesNoChangeAfterAnUnknownControl)
{
    controls.Add("A").isChanged = 1;
    AddCondition(rule.conditions, "Unknown");
    AddCondition(rule.conditions, "A");
    EXPECT_EQ(Bound().AnyChanged(), 0);
}

TEST_F(DependencyRule, IsAnEventRuleByItsWord)
{
    for (const char* word : {"CLEAR", "FILL"})
    {
        rule.stateWord = word;
        EXPECT_TRUE(rule.IsEventRule()) << word;
    }
    for (const char* word : {"VISIBLE", "ACTIVE", "clear", "DEFBUTTON", ""})
    {
        rule.stateWord = word;
        EXPECT_FALSE(rule.IsEventRule()) << word;
    }
}
