#include "Controls.h"

#include "model/ClytConditionTest.h"
#include "model/ClytControlDep.h"
#include "support/Cases.h"
#include "unit/dlgfile/Description.h"

namespace
{

// Whether the values, cut at bars, contain the one after the last bar.
std::string Contains(const std::string& text)
{
    ClytCtrlValList list;
    size_t place = 0;
    for (size_t end = 0; (end = text.find('|', place)) != std::string::npos; place = end + 1)
        list.GetValues().AddTail(text.substr(place, end - place).c_str());
    return list.Contains(text.substr(place).c_str()) != 0 ? "yes" : "no";
}

// The conditions of a rule as they are written, over the controls A with the value x, B with y and the empty E.
class Condition : public testing::Test
{
protected:
    Condition() : a(controls.Add("A", "x")), b(controls.Add("B", "y")) { controls.Add("E"); }

    ClytControlDep& Rule(const std::string& conditions)
    {
        Description file("X/ACTIVE = " + conditions + "\n");
        rule = std::make_unique<ClytControlDep>();
        EXPECT_EQ(file.ReadDependencyStatement(*rule), 1);
        rule->Bind(controls.map);
        return *rule;
    }
    std::string Holds(const std::string& conditions) { return Rule(conditions).AllHold() != 0 ? "yes" : "no"; }
    std::string Changed(const std::string& conditions) { return Rule(conditions).AnyChanged() != 0 ? "yes" : "no"; }

    Controls controls;
    RecordingControl& a;
    RecordingControl& b;
    std::unique_ptr<ClytControlDep> rule;
};

} // namespace

TEST(ValueList, ContainsAValueByteForByteAndAnEmptyOneByTheWordNull)
{
    ExpectAll(Contains, "yes", {"NULL|", "a|NULL|", "|", "abc|abc", "NULL|NULL"});
    ExpectAll(Contains, "no", {"NULL|x", "null|", "NULL |", "abc|Abc", ""});
}

TEST(ValueList, IsSatisfiedByTheControlsValueWithoutAMeaningOfNull)
{
    Controls controls;
    controls.Add("A", "x");
    controls.Add("Empty");
    static const struct
    {
        const char* name;
        std::vector<const char*> values;
        bool isSatisfied;
    } cases[] = {{"A", {}, false},
                 {"A", {"y", "x"}, true},
                 {"Empty", {"NULL"}, false},
                 {"Empty", {""}, true},
                 {"Unknown", {"x"}, false}};
    for (const auto& c : cases)
    {
        ClytCtrlValList list(c.name);
        for (const char* value : c.values)
            list.GetValues().AddTail(value);
        list.Bind(controls.map);
        EXPECT_EQ(lytTest(list, ClytRuleKind::Input) == ClytTested::Holds, c.isSatisfied) << c.name;
        ClytCtrlValList copy("B");
        copy.GetValues().AddTail("3");
        copy.CopyFrom(list);
        copy.CopyFrom(copy);
        EXPECT_EQ(copy.GetName(), c.name);
        EXPECT_EQ(copy.GetValues().GetCount(), static_cast<int>(c.values.size()));
    }
}

TEST_F(Condition, HoldsByOneOfItsValuesOrByContent)
{
    const auto holds = [this](const std::string& conditions) { return Holds(conditions); };
    // Unknown controls are passed over, and what is after NOTNULL is not looked at.
    ExpectAll(holds, "yes",
              {"", "A", "A(0,x), B(y)", "Unknown(1)", "A(NOTNULL), B(wrong)", "A(z,NOTNULL)", "E(NULL)", "E()"});
    // NOTNULL counts as the last value only.
    ExpectAll(holds, "no", {"A(x), B(z)", "E(NOTNULL), B(y)", "A(NOTNULL,z)", "A(notnull)", "A(y)", "A(NULL)"});
}

TEST_F(Condition, FailsOnADisabledControlThatIsNeitherHiddenNorForDisplayOnly)
{
    a.isActive = 0;
    EXPECT_EQ(Holds("A"), "no");
    a.Exempt("INACTIVE");
    EXPECT_EQ(Holds("A(x)"), "no");
    for (const char* option : {"HIDDEN", "DISPLAYONLY"})
    {
        RecordingControl& control = controls.Add("C", "x");
        control.isActive = 0;
        control.Exempt(option);
        EXPECT_EQ(Holds("C(x)"), "yes") << option;
        EXPECT_EQ(Holds("C(y)"), "no") << option;
    }
}

TEST_F(Condition, SeesAnyChangeUpToAnUnknownControl)
{
    EXPECT_EQ(Changed("A, B"), "no");
    b.isChanged = 7;
    EXPECT_EQ(Changed("A, B"), "yes");
    EXPECT_EQ(Changed(""), "no");
    EXPECT_EQ(Changed("Unknown, B"), "no");
}

TEST(DependencyRule, IsAnEventRuleByItsWord)
{
    ClytControlDep rule;
    for (const char* word : {"CLEAR", "FILL", "VISIBLE", "ACTIVE", "clear", "DEFBUTTON", ""})
    {
        rule.stateWord = word;
        EXPECT_EQ(rule.IsEventRule(), std::string(word) == "CLEAR" || std::string(word) == "FILL") << word;
    }
}
