// Dialogs: opening and closing, one inside the other, states of windows, and which messages are sent on the way.
#include "Stage.h"

#include "res/resource.h"

namespace
{

// A dialog that opens from a command, and closes by its own button.
class Nested : public Recorded<CDialog>
{
public:
    Nested() : Recorded(IDD_PROPERTIES) {}

    // What happens while it opens; false when it is not to open.
    std::function<bool(HWND dialog)> onOpen;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        SetWindowText("Nested");
        m_edit.CreateEx(WS_EX_CLIENTEDGE, "Edit", "inner", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(5, 5, 90, 25),
                        this, 110);
        m_ok.Create("OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, CRect(5, 30, 90, 50), this, IDOK);
        return !onOpen || onOpen(m_hWnd);
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

// A dialog that tells something before it is there, and is there then or is not.
void Telling()
{
    Stage stage("Telling");
    stage.Edit(9);
    stage.Button(10, "Open");
    stage.Button(11, "Fail");
    stage.Button(12, "Tell twice");
    stage.Ok();
    stage.onCommand = [](int id, int code)
    {
        if (id < 10 || code != BN_CLICKED)
            return;
        Nested nested;
        nested.onOpen = [&](HWND dialog)
        {
            ::AfxMessageBox("told");
            if (id == 12)
                ::AfxMessageBox("told again");
            if (id == 11)
                ::EndDialog(dialog, 3);
            return id != 11;
        };
        Print("nested gives %d", static_cast<int>(nested.DoModal()));
    };
    const auto look = [&]
    {
        const HWND top = robot::ActiveDialog();
        Print("top '%s', outer enabled %d, active '%s'", robot::TextOf(top).c_str(), ::IsWindowEnabled(stage.m_hWnd),
              robot::TextOf(::GetActiveWindow()).c_str());
    };
    for (const int id : {10, 11, 12})
    {
        stage.Act("press " + std::to_string(id), [&, id] { robot::Press(::GetDlgItem(stage.m_hWnd, id)); });
        stage.Look(look);
        for (int message = 0; message < (id == 12 ? 2 : 1); ++message)
        {
            stage.Act("answer", [] { robot::Press(::GetDlgItem(robot::ActiveDialog(), IDOK)); });
            stage.Look(look);
        }
        if (id != 11)
            stage.Act("close", [] { robot::PressKey(VK_RETURN); });
        stage.Look(look);
    }
    stage.Run();
}

// A dialog that loses its only tab stop, which is a button, and gets it back. Its other children are texts.
void OnlyTabStop(const std::string& children)
{
    Stage stage("Only tab stop");
    Print("children %s", children.c_str());
    const CButton* push = nullptr;
    int id = 10;
    for (const char child : children)
    {
        if (child == 'B')
            push = &stage.Button(id++, "Push");
        else
            stage.Static(id++, "Text");
    }
    stage.onOpen = [&]
    {
        for (size_t place = 0; place < children.size(); ++place)
        {
            const HWND child = ::GetDlgItem(stage.m_hWnd, 10 + static_cast<int>(place));
            if (children[place] == 'h')
                ::ShowWindow(child, SW_HIDE);
            if (children[place] == 'G')
                ::SetWindowLongPtrA(child, GWL_STYLE, ::GetWindowLongPtrA(child, GWL_STYLE) | WS_GROUP);
        }
    };
    const auto tab = [&] { ::PostMessageA(stage.m_hWnd, WM_KEYDOWN, VK_TAB, 1); };
    stage.Act("hide it", [&] { push->ShowWindow(SW_HIDE); });
    stage.Act("show it", [&] { push->ShowWindow(SW_SHOW); });
    stage.Act("click it", [&] { robot::Click(push->m_hWnd); });
    stage.Act("hide it again", [&] { push->ShowWindow(SW_HIDE); });
    stage.Act("show it again", [&] { push->ShowWindow(SW_SHOW); });
    stage.Act("tab", tab);
    stage.Act("disable it", [&] { push->EnableWindow(FALSE); });
    stage.Act("enable it", [&] { push->EnableWindow(TRUE); });
    stage.Act("tab after that", tab);
    stage.Act("hide it with the focus elsewhere",
              [&]
              {
                  ::SetFocus(nullptr);
                  push->ShowWindow(SW_HIDE);
                  ::SetFocus(stage.m_hWnd);
              });
    stage.Act("show it with the focus elsewhere", [&] { push->ShowWindow(SW_SHOW); });
    stage.Act("press it", [&] { robot::Press(push->m_hWnd); });
    stage.Run();
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
    Telling();
    for (const char* children : {"B", "tB", "Bt", "hBt", "GBGt", "hBGht", "GBtGht", "Bh", "hhtBhth", "GtB"})
        OnlyTabStop(children);
    States();
}
