#include "Form.h"

#include <gtest/gtest.h>

namespace
{

class CheckBox : public testing::Test
{
protected:
    CheckBox()
    {
        form.main.layout = {"CheckBox Box"};
        form.main.values = {"Box=ON,yes", "Box=OFF,no", "Box=no"};
        form.main.output = {"(\"<%s>\", Box)"};
    }

    bool IsChecked() const { return SendMessageA(form["Box"], BM_GETCHECK, 0, 0) == BST_CHECKED; }
    std::string ValueFor(const std::string& input)
    {
        form.main.input = InputTo("Box");
        return form.Ok().Open(input).text;
    }

    Form form;
};

} // namespace

TEST_F(CheckBox, TakesItsOwnTextAndTheWordAndAnswersItsOwnText)
{
    EXPECT_EQ(ValueFor("yes"), "<yes>");
    EXPECT_EQ(ValueFor("ON"), "<yes>");
    form.main.values.back() = "Box=yes";
    EXPECT_EQ(ValueFor("no"), "<no>");
    EXPECT_EQ(ValueFor("OFF"), "<no>");
}

TEST_F(CheckBox, WithoutAnOffTextItsUncheckedValueIsEmpty)
{
    form.main.values = {"Box=ON,yes"};
    EXPECT_EQ(form.Ok().Open().text, "<>");
}

TEST_F(CheckBox, AnUnknownValueLeavesItAsItIs)
{
    EXPECT_EQ(ValueFor("other"), "<no>");
    form.main.values.back() = "Box=yes";
    EXPECT_EQ(ValueFor("other"), "<yes>");
}

TEST_F(CheckBox, AnEmptyValueLeavesItAsItIs)
{
    form.main.values.back() = "Box=yes";
    EXPECT_EQ(ValueFor(""), "<yes>");
}

TEST_F(CheckBox, AnEmptyValueEqualsATextThatWasNeverGiven)
{
    // No off text, so that the empty value is it.
    form.main.values = {"Box=ON,yes", "Box=yes"};
    EXPECT_EQ(ValueFor(""), "<>");
    // Neither text: the empty value is the on text.
    form.main.values = {"Box=OFF,no", "Box=no"};
    EXPECT_EQ(ValueFor(""), "<>");
}

TEST_F(CheckBox, StartsInItsDefaultState)
{
    form.Then([&] { EXPECT_FALSE(IsChecked()); }).Ok().Open();
    form.main.values.back() = "Box=yes";
    form.Then([&] { EXPECT_TRUE(IsChecked()); }).Ok().Open();
}

TEST_F(CheckBox, WithoutAnyStatementStartsChecked)
{
    form.main.values.clear();
    form.Then([&] { EXPECT_TRUE(IsChecked()); }).Ok().Open();
    form.main.values = {"Box=ON,yes"};
    form.Then([&] { EXPECT_FALSE(IsChecked()); }).Ok().Open();
}

TEST_F(CheckBox, AWrongDefaultRaises236WithItsName)
{
    form.main.values.back() = "Box=perhaps";
    const Form::Outcome outcome = form.Message().Open();
    EXPECT_EQ(outcome.answer, 0);
    EXPECT_EQ(outcome.messages, (Texts{"238\n236 'Box'"}));
}

TEST_F(CheckBox, AClickTogglesItAndRunsTheRules)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.rules = {"Edit/ACTIVE=Box(yes)"};
    form.Then(
        [&]
        {
            EXPECT_FALSE(IsWindowEnabled(form["Edit"]));
            robot::Click(form["Box"]);
        });
    form.Then([&] { EXPECT_TRUE(IsWindowEnabled(form["Edit"])); });
    EXPECT_EQ(form.Ok().Open().text, "<yes>");
}

TEST_F(CheckBox, CountsAsChangedByItsState)
{
    form.main.layout.emplace_back("TextBox Edit");
    form.main.values.emplace_back("Edit=kept");
    form.main.rules = {"Edit/CLEAR=Box"};
    form.Then([&] { robot::Click(form["Box"]); });
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); });
    form.Ok().Open();
}
