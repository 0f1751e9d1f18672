#include "TestWindows.h"

#include <afxcmn.h>
#include <winhand_.h>

#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

using Record = std::vector<std::string>;

namespace
{

WNDPROC under = nullptr;

// A procedure of somebody else, who joins a window after us.
LRESULT CALLBACK Upper(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == questionMessage ? 77 : CallWindowProcA(under, window, message, wParam, lParam);
}

void PutOnTop(HWND window)
{
    under = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(Upper))));
}

HWND PlainEdit(const CWnd& parent)
{
    return ::CreateWindowExA(0, "Edit", "kept", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 90, 20, parent.m_hWnd, nullptr,
                             AfxGetInstanceHandle(), nullptr);
}

} // namespace

TEST(MessageMap, CracksParameters)
{
    RecordingWindow window;
    window.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 40));
    window.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, static_cast<WORD>(-6)));
    window.SendMessage(WM_KEYDOWN, VK_SPACE, MAKELPARAM(2, 3));
    EXPECT_EQ(window.record, (Record{"size 0 30 40", "down 1 5 -6", "key 32 2 3"}));
}

TEST(MessageMap, CommandNeedsItsIdentifierAndItsCode)
{
    RecordingWindow window;
    const LPARAM control = 1; // any nonzero handle serves as a control
    window.SendMessage(WM_COMMAND, MAKEWPARAM(7, BN_CLICKED), control);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(7, EN_CHANGE), control);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(8, BN_CLICKED), control);
    EXPECT_EQ(window.record, Record{"chosen"});
}

TEST(MessageMap, MenuAndAcceleratorAreThePlainCommand)
{
    RecordingWindow window;
    window.SendMessage(WM_COMMAND, MAKEWPARAM(7, 1), 0);
    EXPECT_EQ(window.record, Record{"chosen"});
}

TEST(MessageMap, NotificationGivesItsResultToTheSender)
{
    RecordingWindow window;
    NMHDR header{window.m_hWnd, 9, static_cast<UINT>(NM_DBLCLK)};
    EXPECT_EQ(window.SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&header)), 42);
    EXPECT_EQ(window.SendMessage(WM_NOTIFY, 9, 0), 0);
    EXPECT_EQ(window.record, Record{"notified by 9"});
}

TEST(MessageMap, DrawingWithoutARecordIsNobodys)
{
    RecordingWindow window;
    EXPECT_EQ(window.SendMessage(WM_DRAWITEM, 0, 0), 0);
    DRAWITEMSTRUCT draw{};
    EXPECT_EQ(window.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw)), 0);
    EXPECT_EQ(TakeMessages(), Record{});
}

TEST(MessageMap, ClassStandsBeforeItsBase)
{
    FailingWindow window;
    window.SendMessage(WM_COMMAND, 7, 0);
    EXPECT_EQ(window.record, Record{"own handler"});
    EXPECT_EQ(window.SendMessage(questionMessage, 0, 5), 6);
    TakeMessages();
}

TEST(MessageMap, DefaultHandsOnTheMessageOfItsOwnHandler)
{
    RecordingWindow window;
    EXPECT_EQ(window.SendMessage(questionMessage, 1, 5), 0);
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(text, "inner");
    EXPECT_EQ(window.record, Record{"question"});
}

TEST(LastResort, ReportsAnExceptionAndGoesOn)
{
    FailingWindow window;
    EXPECT_EQ(window.SendMessage(failMessage, 0), 0);
    EXPECT_EQ(TakeMessages(), Record{"raised by a handler"});
    EXPECT_EQ(window.SendMessage(questionMessage, 0, 1), 2);
}

TEST(LastResort, TurnsForeignExceptionsIntoMessages)
{
    FailingWindow window;
    window.SendMessage(failMessage, 1);
    window.SendMessage(failMessage, 2);
    EXPECT_EQ(TakeMessages(), (Record{"a plain failure", "An unknown error occurred."}));
}

TEST(LastResort, OutlivesAReportThatFails)
{
    FailingWindow window;
    window.SendMessage(failMessage, 3);
    EXPECT_EQ(TakeMessages(), Record{});
}

TEST(LastResort, CommandThatFailedCountsAsHandled)
{
    FailingWindow window;
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 7, 0), TRUE);
    EXPECT_EQ(TakeMessages().size(), 1U);
}

TEST(Window, ThatDiesFirstLetsItsObjectGo)
{
    RecordingWindow window;
    const HWND handle = window.m_hWnd;
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), &window);
    ::DestroyWindow(handle);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.destroyed, 1);
    EXPECT_EQ(window.record, Record{"destroy"});
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(Window, ObjectThatDiesFirstTakesItsWindowAlong)
{
    HWND handle = nullptr;
    {
        RecordingWindow window;
        handle = window.m_hWnd;
        EXPECT_TRUE(::IsWindow(handle));
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(Window, JoinedControlKeepsItsBehaviourAndItsClass)
{
    RecordingWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_BORDER | ES_AUTOHSCROLL, CRect(1, 2, 51, 22), &parent, 5));
    EXPECT_EQ(CWnd::FromHandlePermanent(edit.m_hWnd), &edit);
    EXPECT_EQ(edit.GetDlgCtrlID(), 5);
    char name[16] = "";
    ::GetClassNameA(edit.m_hWnd, name, sizeof name);
    EXPECT_STREQ(name, "Edit");
    EXPECT_FALSE(::IsWindowUnicode(edit.m_hWnd));

    edit.SetWindowText("text \xE4\xBD");
    edit.SendMessage(WM_CHAR, '!');
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(text, "!text \xE4\xBD");
    edit.SetSel(0, -1);
    edit.Clear();
    edit.GetWindowText(text);
    EXPECT_EQ(text, "");
}

TEST(Window, GivesItsTextWhateverItsLength)
{
    RecordingWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, CRect(1, 2, 51, 22), &parent, 5));
    for (const int length : {0, 1, 254, 255, 256, 257, 3000})
    {
        SCOPED_TRACE(length);
        const CString set('x', length);
        edit.SetWindowText(set);
        CString text = "what was there before";
        edit.GetWindowText(text);
        EXPECT_EQ(text.GetLength(), length);
        EXPECT_EQ(text, set);
    }
}

TEST(Window, LeavesAWindowAsItFoundIt)
{
    RecordingWindow parent;
    const HWND handle = PlainEdit(parent);
    const LONG_PTR procedure = ::GetWindowLongPtrA(handle, GWLP_WNDPROC);
    CEdit edit;
    EXPECT_TRUE(edit.SubclassWindow(handle));
    EXPECT_FALSE(edit.SubclassWindow(handle)) << "an object belongs to one window";
    EXPECT_EQ(edit.UnsubclassWindow(), handle);
    EXPECT_EQ(::GetWindowLongPtrA(handle, GWLP_WNDPROC), procedure);
    EXPECT_EQ(edit.UnsubclassWindow(), nullptr);
}

TEST(Window, LeavesAProcedureThatStandsOnTopOfOurs)
{
    RecordingWindow parent;
    const HWND handle = PlainEdit(parent);
    CEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(handle));
    PutOnTop(handle);
    EXPECT_EQ(edit.UnsubclassWindow(), handle);
    EXPECT_EQ(::SendMessageA(handle, questionMessage, 0, 0), 77) << "what is on top stays there";
    ::SendMessageA(handle, WM_CHAR, '!', 1);
    char text[16] = "";
    ::GetWindowTextA(handle, text, sizeof text);
    EXPECT_STREQ(text, "!kept") << "the messages still reach the edit";

    CEdit later;
    ASSERT_TRUE(later.SubclassWindow(handle));
    EXPECT_EQ(::SendMessageA(handle, questionMessage, 0, 0), 77);
    ::SendMessageA(handle, WM_CHAR, '?', 1);
    ::GetWindowTextA(handle, text, sizeof text);
    EXPECT_STREQ(text, "!?kept") << "ours came into the chain once";
    later.UnsubclassWindow();
    ::DestroyWindow(handle);
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(CHandleMap::Get().FindBelow(handle), nullptr) << "the handle may come back as another window's";
}

TEST(Window, ObjectThatDiesUnderAnotherProcedureTakesItsWindowAlong)
{
    HWND handle = nullptr;
    {
        RecordingWindow window;
        handle = window.m_hWnd;
        PutOnTop(handle);
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(Window, ThatDiesUnderAnotherProcedureLetsItsObjectGo)
{
    RecordingWindow window;
    const HWND handle = window.m_hWnd;
    PutOnTop(handle);
    ::DestroyWindow(handle);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.destroyed, 1);
    EXPECT_EQ(CHandleMap::Get().FindBelow(handle), nullptr);
}

TEST(Window, HasOneObject)
{
    RecordingWindow window;
    CWnd other;
    EXPECT_FALSE(other.SubclassWindow(window.m_hWnd));
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
}

TEST(Window, ObjectStandsOverOneWindow)
{
    RecordingWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(0, CRect(0, 0, 1, 1), &parent, 0));
    const HWND first = edit.m_hWnd;
    EXPECT_FALSE(edit.Create(0, CRect(0, 0, 1, 1), &parent, 0));
    EXPECT_EQ(::GetWindow(parent.m_hWnd, GW_CHILD), first);
    EXPECT_EQ(::GetWindow(first, GW_HWNDNEXT), nullptr);
}

TEST(Window, ThatCannotBeCreatedLeavesNoHandle)
{
    CEdit edit;
    EXPECT_FALSE(edit.Create(0, CRect(0, 0, 1, 1), nullptr, 0)) << "a child needs a parent";
    EXPECT_EQ(edit.m_hWnd, nullptr);
    EXPECT_FALSE(edit.CreateEx(0, "no such class", "", WS_POPUP, CRect(), nullptr, 0));
}

TEST(Window, WithoutAHandleAnswersQuietly)
{
    CWnd window;
    RecordingWindow other;
    other.ShowWindow(SW_SHOW);
    ::SetFocus(other.m_hWnd);
    EXPECT_EQ(window.SetFocus(), nullptr);
    EXPECT_EQ(::GetFocus(), other.m_hWnd);
    EXPECT_FALSE(window.IsWindowEnabled());
    EXPECT_FALSE(window.IsWindowVisible());
    EXPECT_FALSE(window.DestroyWindow());
    EXPECT_EQ(window.SendMessage(WM_GETTEXTLENGTH), 0);
}

TEST(Window, ForeignHandleGetsASubstitute)
{
    RecordingWindow parent;
    const HWND handle = ::CreateWindowExA(0, "Edit", "text", WS_CHILD, 0, 0, 10, 10, parent.m_hWnd,
                                          reinterpret_cast<HMENU>(UINT_PTR{3}), AfxGetInstanceHandle(), nullptr);
    CWnd* substitute = parent.GetDlgItem(3);
    ASSERT_NE(substitute, nullptr);
    EXPECT_EQ(substitute->m_hWnd, handle);
    EXPECT_EQ(parent.GetDlgItem(3), substitute);
    EXPECT_EQ(parent.GetDlgItem(4), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(substitute->GetParent(), &parent);
}
