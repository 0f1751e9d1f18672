#include "unit/model/Controls.h"

#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

#include <vector>

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

TEST_F(BaseControl, TakesNoOtherWordThanTheFourAsAnOption)
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

TEST_F(BaseControl, FailsByItsEvaluationOnAForbiddenPairOfValues)
{
    using Values = std::vector<const char*>;
    static const struct
    {
        Values own;
        Values forbidden;
        const char* value;
        const char* other;
        int passes;
    } cases[] = {
        {{}, {"y"}, "x", "y", 1},
        {{"w", "x"}, {"y"}, "x", "y", 0},
        {{"w", "x"}, {"y"}, "x", "z", 1},
        {{"w", "x"}, {"y"}, "v", "y", 1},
        // NULL means an empty value; as the first it asks for the control's own value alone.
        {{"x", "NULL"}, {"NULL"}, "", "", 0},
        {{"NULL", "x"}, {"y"}, "x", "y", 1},
        {{"NULL", "x"}, {"y"}, "", "z", 0},
    };
    for (const auto& c : cases)
    {
        RecordingControl& control = controls.Add("A", c.value);
        controls.Add("B", c.other);
        EXPECT_EQ(control.Evaluate(), 1) << "without an evaluation";
        ClytCtrlValList own("A");
        for (const char* value : c.own)
            own.GetValues().AddTail(value);
        ClytCtrlValList forbidden("B");
        for (const char* value : c.forbidden)
            forbidden.GetValues().AddTail(value);
        forbidden.Bind(controls.map);
        control.SetEvaluation(own, forbidden, "CLASH");
        EXPECT_EQ(control.Evaluate(), c.passes) << c.value << "/" << c.other;
        EXPECT_EQ(controls.TakeLog(), c.passes == 0 ? "A.focus() " : "");
    }
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
