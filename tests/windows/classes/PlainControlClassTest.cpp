#include "ControlClass.h"

#include "controls/ClytDefaultControl.h"
#include "controls/ClytEditControl.h"
#include "controls/ClytGroupBoxControl.h"
#include "controls/ClytStaticControl.h"

namespace
{

class PlainControlClass : public ControlClass
{
protected:
    ClytEditControl edit{"Edit", {10, 10}, {150, 20}, ""};
};

} // namespace

TEST_F(PlainControlClass, EditFillsForAnyActionWordButClear)
{
    SetOption(edit, "FILLEDBY", {"nasty", "EchoText"});
    edit.CreateControl(&dialog);
    for (const char* word : {"FILL", "ANYTHING", "clear", ""})
    {
        edit.SetValue("old");
        edit.DoAction(word);
        EXPECT_STREQ(edit.GetValue(), "<> 255") << word;
    }
    edit.DoAction("CLEAR");
    EXPECT_STREQ(edit.GetValue(), "");
}

TEST_F(PlainControlClass, FillLeavesTheArrowCursorOnEveryWayOut)
{
    edit.CreateControl(&dialog);
    SetCursor(LoadCursorA(nullptr, IDC_CROSS));
    edit.FillByLibrary();
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(PlainControlClass, EditChangesWhenItsTextDiffersFromTheSavedOne)
{
    edit.CreateControl(&dialog);
    EXPECT_EQ(edit.IsChanged(), 0) << "nothing is saved, nothing is there";
    edit.SetValue("a");
    EXPECT_EQ(edit.IsChanged(), 1);
    EXPECT_EQ(edit.HasContent(), 1);
    edit.SaveState();
    EXPECT_EQ(edit.IsChanged(), 0);
    edit.SetValue("");
    EXPECT_STREQ(edit.GetValue(), "a") << "an empty text empties nothing";
}

TEST_F(PlainControlClass, DefaultButtonOfAnotherKindCreatesNothing)
{
    for (const int kind : {-1, 2})
    {
        ClytDefaultControl button({0, 0}, {1, 1}, kind);
        button.CreateControl(&dialog);
        EXPECT_EQ(button.m_hWnd, nullptr);
    }
    EXPECT_EQ(GetWindow(dialog.m_hWnd, GW_CHILD), nullptr);
}

TEST_F(PlainControlClass, DefaultButtonAnswersAsTheBaseDoes)
{
    ClytDefaultControl ok({0, 0}, {50, 20}, 1);
    ok.CreateControl(&dialog);
    EXPECT_STREQ(ok.GetName(), "");
    EXPECT_EQ(ok.IsActive(), 0);
    EXPECT_EQ(ok.HasContent(), 0);
    EXPECT_EQ(ok.IsVisible(), 1);
    EXPECT_EQ(ok.IsChanged(), 0);
    EXPECT_EQ(ok.DeleteCurrentItem(), 1);
    ok.SetState("ACTIVE", 0);
    ok.SetState("VISIBLE", 0);
    EXPECT_TRUE(ok.IsWindowEnabled());
    EXPECT_EQ(TakeMessages().size(), 0U);
    ok.SetValue("x");
    EXPECT_STREQ(ok.GetValue(), "");
    EXPECT_STREQ(ok.GetDisplayValue(), "");
    ok.DoAction("CLEAR");
    EXPECT_EQ(TakeMessages().size(), 4U);
}

TEST_F(PlainControlClass, GroupBoxAndStaticTextHaveContentAndNoFocus)
{
    ClytGroupBoxControl frame("Frame", {0, 0}, {50, 50}, "\"\"");
    ClytStaticControl text("Text", {0, 0}, {50, 50}, "Label");
    frame.CreateControl(&dialog);
    text.CreateControl(&dialog);
    EXPECT_EQ(frame.HasContent() + text.HasContent() + frame.IsActive() + text.IsActive(), 4);
    const HWND focus = GetFocus();
    frame.SetControlFocus();
    text.SetControlFocus();
    EXPECT_EQ(GetFocus(), focus);
}
