#include "unit/model/Controls.h"

#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

namespace
{

// A control that leaves every answer to the base class.
class PlainControl : public ClytControl
{
public:
    PlainControl() : ClytControl("Plain", {1, 2}, {3, 4}, "caption") {}
    int IsActive() override { return 1; }
    int HasContent() override { return 1; }
    ClytForm* Owner() const { return dialog; }
    bool HasFlags(int isHidden, int isDisplayOnly, int isInvisible, int isInactive) const
    {
        return hidden == isHidden && displayOnly == isDisplayOnly && invisible == isInvisible && inactive == isInactive;
    }
    int Take(const char* word) { return TakeCommonOption(word); }
};

class BaseControl : public testing::Test
{
protected:
    void Evaluation(ClytControl& control, std::initializer_list<const char*> own, const char* otherName = "",
                    std::initializer_list<const char*> other = {})
    {
        ClytCtrlValList ownValues("A");
        for (const char* value : own)
            ownValues.GetValues().AddTail(value);
        ClytCtrlValList otherValues(otherName);
        for (const char* value : other)
            otherValues.GetValues().AddTail(value);
        otherValues.Bind(controls.map);
        control.SetEvaluation(ownValues, otherValues, "CLASH");
    }

    void TearDown() override { EXPECT_TRUE(TakeMessages().empty()); }

    PlainControl plain;
    Controls controls;
};

} // namespace

TEST_F(BaseControl, AnswersQuietlyOtherwise)
{
    plain.CreateControl(nullptr);
    EXPECT_EQ(plain.Owner(), nullptr);
    plain.SetOption({}, "x");
    plain.SaveState();
    plain.SetControlFocus();
    plain.AddValues("a", "b");
    CString all = "before";
    plain.GetAllValues(all, ",");
    EXPECT_EQ(all, "before");
    EXPECT_EQ(plain.IsChanged(), 0);
    EXPECT_EQ(plain.DeleteCurrentItem(), 1);
    plain.AddItem("a", "b", 1, 0);
    plain.ReplaceCurrentItem("x");
    plain.MoveCurrentItem(1);
    plain.FillByLibrary();
    plain.SetState("ACTIVE", 0);
    EXPECT_EQ(plain.IsVisible(), 1);
    EXPECT_EQ(plain.GetName(), "Plain");
}

TEST_F(BaseControl, TakesEachOptionWord)
{
    EXPECT_TRUE(plain.HasFlags(0, 0, 0, 0));
    EXPECT_EQ(plain.Take("HIDDEN"), 1);
    EXPECT_TRUE(plain.HasFlags(1, 0, 0, 0));
    EXPECT_EQ(plain.Take("DISPLAYONLY"), 1);
    EXPECT_TRUE(plain.HasFlags(1, 1, 0, 0));
    EXPECT_EQ(plain.Take("INVISIBLE"), 1);
    EXPECT_TRUE(plain.HasFlags(1, 1, 1, 0));
    EXPECT_EQ(plain.Take("INACTIVE"), 1);
    EXPECT_TRUE(plain.HasFlags(1, 1, 1, 1));
}

TEST_F(BaseControl, TakesNoOtherWordAsAnOption)
{
    for (const char* word : {"", "hidden", "ACTIVE", "VISIBLE", "HIDDEN "})
        EXPECT_EQ(plain.Take(word), 0) << word;
    EXPECT_TRUE(plain.HasFlags(0, 0, 0, 0));
}

TEST_F(BaseControl, ComparesItsValueWithAList)
{
    RecordingControl& control = controls.Add("A", "x");
    CStringList values;
    EXPECT_EQ(control.HasValueIn(values), 0);
    values.AddTail("y");
    EXPECT_EQ(control.HasValueIn(values), 0);
    values.AddTail("x");
    EXPECT_EQ(control.HasValueIn(values), 1);
}

TEST_F(BaseControl, PassesWithoutAnEvaluation)
{
    EXPECT_EQ(controls.Add("A").Evaluate(), 1);
    RecordingControl& control = controls.Add("A", "x");
    Evaluation(control, {}, "B", {"y"});
    EXPECT_EQ(control.Evaluate(), 1);
}

TEST_F(BaseControl, IgnoresTheRestOfAnEvaluationThatBeginsWithNull)
{
    RecordingControl& control = controls.Add("A", "x");
    RecordingControl& other = controls.Add("B", "y");
    Evaluation(control, {"NULL", "x"}, "B", {"y"});
    EXPECT_EQ(control.Evaluate(), 1);
    control.value.Empty();
    other.value = "z";
    EXPECT_EQ(control.Evaluate(), 0);
}

TEST_F(BaseControl, FailsOnAForbiddenPairOfValues)
{
    RecordingControl& control = controls.Add("A", "x");
    RecordingControl& other = controls.Add("B", "y");
    Evaluation(control, {"w", "x"}, "B", {"y"});
    EXPECT_EQ(control.Evaluate(), 0);
    EXPECT_EQ(controls.TakeLog(), "A.focus() ");
    other.value = "z";
    EXPECT_EQ(control.Evaluate(), 1);
    other.value = "y";
    control.value = "v";
    EXPECT_EQ(control.Evaluate(), 1);
}

TEST_F(BaseControl, MatchesEmptyValuesOfAForbiddenPairByNull)
{
    RecordingControl& control = controls.Add("A");
    controls.Add("B");
    Evaluation(control, {"x", "NULL"}, "B", {"NULL"});
    EXPECT_EQ(control.Evaluate(), 0);
}

TEST_F(BaseControl, KeepsAStatementAsACopy)
{
    ClytControlVal action;
    CStringList values;
    values.AddTail("a");
    action.Set("ADD", values);
    values.AddTail("b");
    action.Set(action.GetKeyword(), action.GetValues());
    EXPECT_EQ(action.GetKeyword(), "ADD");
    EXPECT_EQ(action.GetValues().GetCount(), 1);
    action.Set("DELETE", values);
    EXPECT_EQ(action.GetValues().GetCount(), 2);
}
