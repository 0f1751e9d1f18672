#include "TestWindows.h"

#include "robot/WindowRobot.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

#include <stdexcept>

using Record = std::vector<std::string>;

TEST(Dialog, ReturnEndsItWithOk)
{
    ScriptedDialog dialog(filledTemplate);
    robot::Robot robot;
    robot.On("Filled", [](HWND) { robot::PressKey(VK_RETURN); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.record, (Record{"init", "ok"}));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(robot.Done()) << robot.Log();
}

TEST(Dialog, ReturnReachesOkWithoutAnyButton)
{
    ScriptedDialog dialog(emptyTemplate);
    robot::Robot robot;
    robot.On("Empty", [](HWND window) { PostMessageA(window, WM_KEYDOWN, VK_RETURN, 1); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.record, (Record{"init", "ok"}));
}

TEST(Dialog, EndedWhileItInitialisesIsNeverSeen)
{
    ScriptedDialog dialog(emptyTemplate);
    dialog.init = ScriptedDialog::Init::EndAtOnce;
    EXPECT_EQ(dialog.DoModal(), 33);
}

TEST(Dialog, WhoseInitialisationFailsStandsAfterTheMessage)
{
    ScriptedDialog dialog(emptyTemplate);
    dialog.init = ScriptedDialog::Init::Raise;
    robot::Robot robot;
    robot.On("Empty", [](HWND window) { PostMessageA(window, WM_CLOSE, 0, 0); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(TakeMessages(), Record{"raised by a handler"});
    EXPECT_TRUE(robot.Done()) << robot.Log();
}

TEST(Dialog, WithoutATemplateDoesNotStart)
{
    ScriptedDialog dialog(999);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.record, Record{});
}

TEST(Dialog, RunsOnceAtATime)
{
    ScriptedDialog dialog(emptyTemplate);
    robot::Robot robot;
    robot.On("Empty",
             [&](HWND window)
             {
                 EXPECT_EQ(dialog.DoModal(), -1);
                 EXPECT_EQ(dialog.m_hWnd, window);
                 PostMessageA(window, WM_CLOSE, 0, 0);
             });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.record, (Record{"init", "cancel"}));
}

TEST(Dialog, RobotGivesUpWhenAnActRaises)
{
    ScriptedDialog dialog(emptyTemplate);
    robot::Robot robot;
    robot.On("Empty", [](HWND) { throw std::runtime_error("no such thing"); });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(robot.Done());
    EXPECT_NE(robot.Log().find("raised 'no such thing'"), std::string::npos) << robot.Log();
}

TEST(Dialog, SpeaksAnsi)
{
    ScriptedDialog dialog(emptyTemplate);
    dialog.init = ScriptedDialog::Init::EndAtOnce;
    dialog.unicode = true;
    dialog.DoModal();
    EXPECT_FALSE(dialog.unicode);
}

TEST(Dialog, CentersOverItsOwnerWithinTheWorkArea)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoA(::MonitorFromWindow(nullptr, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& area = monitor.rcWork;
    struct CenteredDialog : ScriptedDialog
    {
        using ScriptedDialog::ScriptedDialog;
        CRect rect;
        BOOL OnInitDialog() override
        {
            CenterWindow();
            GetWindowRect(&rect);
            EndDialog(1);
            return TRUE;
        }
    };
    RecordingWindow owner;
    owner.SetWindowPos(nullptr, 300, 200, 200, 100, SWP_SHOWWINDOW);
    ::SetActiveWindow(owner.m_hWnd);
    CenteredDialog over(emptyTemplate);
    over.DoModal();
    EXPECT_EQ(over.rect.left + over.rect.Width() / 2, 400);
    EXPECT_EQ(over.rect.top + over.rect.Height() / 2, 250);

    owner.SetWindowPos(nullptr, area.left - 50, area.top - 50, 60, 60, SWP_SHOWWINDOW);
    CenteredDialog atTheEdge(emptyTemplate);
    atTheEdge.DoModal();
    EXPECT_EQ(atTheEdge.rect.left, area.left);
    EXPECT_EQ(atTheEdge.rect.top, area.top);

    owner.ShowWindow(SW_HIDE);
    CenteredDialog onTheScreen(emptyTemplate);
    onTheScreen.DoModal();
    EXPECT_EQ(onTheScreen.rect.left, (area.left + area.right) / 2 - onTheScreen.rect.Width() / 2);
}
