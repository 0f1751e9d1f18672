// Dialogs: opening and closing, one inside the other, states of windows, and what is told on the way.
#include "Stage.h"

#include "res/resource.h"

namespace
{

// A dialog that opens from a command, and closes by its own button.
class Nested : public Recorded<CDialog>
{
public:
    Nested() : Recorded(IDD_PROPERTIES) {}

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        SetWindowText("Nested");
        m_edit.CreateEx(WS_EX_CLIENTEDGE, "Edit", "inner", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(5, 5, 90, 25),
                        this, 110);
        m_ok.Create("OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, CRect(5, 30, 90, 50), this, IDOK);
        return TRUE;
    }

private:
    Recorded<CEdit> m_edit;
    Recorded<CButton> m_ok;
};

void OpenNested()
{
    Nested nested;
    Print("nested gives %d", static_cast<int>(nested.DoModal()));
}

void Nesting()
{
    Stage stage("Nesting");
    stage.Edit(9);
    const CButton& opener = stage.Button(10, "Open");
    stage.Ok();
    stage.Cancel();
    stage.onCommand = [](int id, int /*code*/)
    {
        if (id == 10)
            OpenNested();
        else if (id == IDOK)
            ::AfxMessageBox("told");
    };
    stage.Act("open by a press", [&] { robot::Press(opener.m_hWnd); });
    stage.Act("close by return", [] { robot::PressKey(VK_RETURN); });
    stage.Act("open by a click", [&] { robot::Click(opener.m_hWnd); });
    stage.Act("close by escape", [] { robot::PressKey(VK_ESCAPE); });
    stage.Act("open by return",
              [&]
              {
                  robot::Focus(opener.m_hWnd);
                  robot::PressKey(VK_RETURN);
              });
    stage.Act("close by the window's menu", [] { ::PostMessageA(robot::ActiveDialog(), WM_CLOSE, 0, 0); });
    stage.Act("open a message",
              [&]
              {
                  ::SetFocus(::GetDlgItem(::GetParent(opener.m_hWnd), 9));
                  robot::PressKey(VK_RETURN);
              });
    stage.Look([] { Print("message '%s'", robot::MessageTextOf(robot::ActiveDialog()).c_str()); });
    stage.Act("answer it", [] { robot::Press(::GetDlgItem(robot::ActiveDialog(), IDOK)); });
    stage.Run();
}

void States()
{
    Stage stage("States");
    const CEdit& first = stage.Edit(9);
    const CButton& push = stage.Button(10, "Push");
    const CListBox& list = stage.List(11);
    stage.Ok();
    stage.Act("disable", [&] { Print("gives %d", push.EnableWindow(FALSE)); });
    stage.Act("disable again", [&] { Print("gives %d", push.EnableWindow(FALSE)); });
    stage.Act("enable", [&] { Print("gives %d", push.EnableWindow(TRUE)); });
    stage.Act("hide", [&] { Print("gives %d", push.ShowWindow(SW_HIDE)); });
    stage.Act("hide again", [&] { Print("gives %d", push.ShowWindow(SW_HIDE)); });
    stage.Act("focus a hidden one", [&] { push.SetFocus(); });
    stage.Act("show", [&] { Print("gives %d", push.ShowWindow(SW_SHOW)); });
    stage.Act("hide the list with the focus",
              [&]
              {
                  list.SetFocus();
                  list.ShowWindow(SW_HIDE);
              });
    stage.Act("move and size",
              [&]
              {
                  push.SetWindowPos(nullptr, 20, 30, 60, 25, SWP_NOZORDER);
                  CRect window;
                  CRect client;
                  CRect dialog;
                  push.GetWindowRect(&window);
                  push.GetParent()->GetWindowRect(&dialog);
                  push.GetClientRect(&client);
                  Print("%ld %ld, %d by %d, client %d by %d", static_cast<long>(window.left - dialog.left),
                        static_cast<long>(window.top - dialog.top), window.Width(), window.Height(), client.Width(),
                        client.Height());
              });
    stage.Act("names and relations",
              [&]
              {
                  const HWND dialog = ::GetParent(push.m_hWnd);
                  Print("%s %s", robot::ClassOf(push.m_hWnd).c_str(), robot::ClassOf(dialog).c_str());
                  Print("%d children, %d", static_cast<int>(robot::ChildrenOf(dialog).size()),
                        ::GetDlgItem(dialog, 10) == push.m_hWnd);
                  Print("none: %d %d", ::GetDlgItem(dialog, 77) == nullptr, ::IsWindow(nullptr));
                  Print("child %d %d", ::IsChild(dialog, push.m_hWnd), ::IsChild(push.m_hWnd, dialog));
                  for (const BOOL previous : {FALSE, TRUE})
                      Print("next tab stop %d", ::GetDlgCtrlID(::GetNextDlgTabItem(dialog, push.m_hWnd, previous)));
                  for (int time = 0; time < 2; ++time)
                      Print("changed %d", push.ModifyStyle(WS_TABSTOP, 0));
                  Print("tab stop %d", (push.GetStyle() & WS_TABSTOP) != 0);
                  Print("ids %d %d", ::GetDlgCtrlID(push.m_hWnd), ::GetDlgCtrlID(first.m_hWnd));
              });
    stage.Run();
}

} // namespace

void Dialogs()
{
    Nesting();
    States();
}
