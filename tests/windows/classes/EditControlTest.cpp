#include "controls/ClytDefaultControl.h"
#include "controls/ClytEditControl.h"
#include "controls/ClytGroupBoxControl.h"
#include "controls/ClytStaticControl.h"
#include "dialog/ClytDialog.h"

#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

namespace
{

// A dialog object over a plain window: enough for controls to stand in.
class ControlClass : public testing::Test
{
protected:
    ControlClass() : dialog("", "")
    {
        dialog.SubclassWindow(CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr,
                                              AfxGetInstanceHandle(), nullptr));
    }
    ~ControlClass() override { dialog.DestroyWindow(); }

    static void SetOption(ClytControl& control, const char* keyword, std::initializer_list<const char*> values)
    {
        CStringList list;
        for (const char* value : values)
            list.AddTail(value);
        control.SetOption(list, keyword);
    }

    ClytDialog dialog;
    ClytEditControl edit{"Edit", {10, 10}, {150, 20}, ""};
};

// The message of what the work raises.
std::string MessageRaisedBy(const std::function<void()>& work)
{
    try
    {
        work();
    }
    catch (CException* e)
    {
        char message[75] = "";
        e->GetErrorMessage(message, sizeof message);
        e->Delete();
        return message;
    }
    return "nothing was raised";
}

} // namespace

TEST_F(ControlClass, EditWithTheDefaultFillFillsItselfWhenItIsCreated)
{
    SetOption(edit, "FILLEDBY", {"nasty", "EchoText"});
    SetOption(edit, "", {"FILL"});
    edit.CreateControl(&dialog);
    EXPECT_STREQ(edit.GetValue(), "<> 255");
}

TEST_F(ControlClass, EditFillsForAnyActionWordButClear)
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

TEST_F(ControlClass, EditTakesNoMoreThanTheBufferOfALibraryThatWritesNoEnd)
{
    SetOption(edit, "FILLEDBY", {"nasty", "FullText"});
    edit.CreateControl(&dialog);
    edit.FillByLibrary();
    EXPECT_STREQ(edit.GetValue(), CString('T', 255));
}

TEST_F(ControlClass, EditBecomesEmptyByALibraryThatWritesNothing)
{
    SetOption(edit, "FILLEDBY", {"nasty", "SilentText"});
    SetOption(edit, "", {"default"});
    edit.CreateControl(&dialog);
    edit.FillByLibrary();
    EXPECT_STREQ(edit.GetValue(), "");
}

TEST_F(ControlClass, EditKeepsItsTextWithoutLibraryFunctionOrRule)
{
    edit.CreateControl(&dialog);
    edit.SetValue("kept");
    edit.FillByLibrary();
    SetOption(edit, "FILLEDBY", {"nasty", "NoSuchFunction"});
    edit.FillByLibrary();
    SetOption(edit, "FILLEDBY", {"nasty", "EchoText", "", "NoSuchRule"});
    edit.FillByLibrary();
    EXPECT_STREQ(edit.GetValue(), "kept");
    EXPECT_EQ(TakeMessages(), std::vector<std::string>());
}

TEST_F(ControlClass, FilledByThatEndsEarlyLeavesTheLaterFields)
{
    SetOption(edit, "FILLEDBY", {"elsewhere", "EchoText", "ignored", "NoSuchRule"});
    SetOption(edit, "FILLEDBY", {"nasty"});
    edit.CreateControl(&dialog);
    edit.SetValue("kept");
    edit.FillByLibrary();
    EXPECT_STREQ(edit.GetValue(), "kept") << "the rule of the first statement is still asked for";
}

TEST_F(ControlClass, FillLeavesTheArrowCursorOnEveryWayOut)
{
    edit.CreateControl(&dialog);
    SetCursor(LoadCursorA(nullptr, IDC_CROSS));
    edit.FillByLibrary();
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(ControlClass, EditChangesWhenItsTextDiffersFromTheSavedOne)
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

TEST_F(ControlClass, WindowThatCannotBeCreatedRaises202)
{
    ClytDialog without("", "");
    EXPECT_EQ(MessageRaisedBy([&] { edit.CreateControl(&without); }), "no value present");
    ClytStaticControl text("Text", {0, 0}, {1, 1}, "Label");
    EXPECT_EQ(MessageRaisedBy([&] { text.CreateControl(&without); }), "no value present");
    ClytDefaultControl ok({0, 0}, {1, 1}, 1);
    EXPECT_EQ(MessageRaisedBy([&] { ok.CreateControl(&without); }), "nothing was raised");
}

TEST_F(ControlClass, DefaultButtonOfAnotherKindCreatesNothing)
{
    for (const int kind : {-1, 2})
    {
        ClytDefaultControl button({0, 0}, {1, 1}, kind);
        button.CreateControl(&dialog);
        EXPECT_EQ(button.m_hWnd, nullptr);
    }
    EXPECT_EQ(GetWindow(dialog.m_hWnd, GW_CHILD), nullptr);
}

TEST_F(ControlClass, DefaultButtonAnswersAsTheBaseDoes)
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

TEST_F(ControlClass, GroupBoxAndStaticTextHaveContentAndNoFocus)
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
