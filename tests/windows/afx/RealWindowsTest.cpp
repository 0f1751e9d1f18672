// What only real windows show: they paint, and they take no memory of the program's own, so that an allocation that fails
// is one of the class library.
#include "TestWindows.h"

#include "support/FailingAllocation.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

TEST(LastResort, WindowThatCannotPaintIsNotPaintedForEver)
{
    FailingWindow window;
    window.ShowWindow(SW_SHOW);
    window.Invalidate();
    ::UpdateWindow(window.m_hWnd);
    EXPECT_GE(window.paints, 1);
    EXPECT_FALSE(::GetUpdateRect(window.m_hWnd, nullptr, FALSE));
    TakeMessages();
}

TEST(Window, ThatCannotBeJoinedIsDestroyed)
{
    RecordingWindow parent;
    CEdit edit;
    {
        const FailingAllocation failing(0);
        EXPECT_THROW(edit.Create(0, CRect(0, 0, 1, 1), &parent, 0), std::bad_alloc);
    }
    EXPECT_EQ(::GetWindow(parent.m_hWnd, GW_CHILD), nullptr);
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

TEST(Dialog, ThatCannotJoinItsWindowRaisesOnceTheWindowIsGone)
{
    RecordingWindow owner;
    owner.ShowWindow(SW_SHOW);
    ::SetActiveWindow(owner.m_hWnd);
    ScriptedDialog dialog(emptyTemplate);
    {
        const FailingAllocation failing(0);
        EXPECT_THROW(dialog.DoModal(), std::bad_alloc);
    }
    EXPECT_EQ(::FindWindowA("#32770", "Empty"), nullptr);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.record, std::vector<std::string>{});
    EXPECT_TRUE(::IsWindowEnabled(owner.m_hWnd));

    dialog.init = ScriptedDialog::Init::EndAtOnce;
    EXPECT_EQ(dialog.DoModal(), 33);
}
