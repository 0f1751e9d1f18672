// How modal runs end other than by their own buttons: by a quit message, by a call from outside, by destruction.
#include "Stage.h"

#include "res/resource.h"

namespace
{

class Inner : public Recorded<CDialog>
{
public:
    Inner() : Recorded(IDD_PROPERTIES) {}

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        m_ok.Create("OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, CRect(5, 30, 90, 50), this, IDOK);
        return TRUE;
    }

private:
    Recorded<CButton> m_ok;
};

// A dialog with a button that opens another, one that opens a message, and one that does neither.
struct Opener : Stage
{
    explicit Opener(const char* title) : Stage(title)
    {
        Button(10, "Open");
        Button(11, "Tell");
        Button(12, "Act");
        onCommand = [this](int id, int /*code*/)
        {
            if (id == 10)
            {
                Inner inner;
                Print("inner gives %d", static_cast<int>(inner.DoModal()));
            }
            else if (id == 11)
                Print("message gives %d", ::MessageBoxA(m_hWnd, "told", "Message", MB_ICONERROR));
            else if (id == 12)
                onAct();
        };
    }
    // The next act comes while the command of this one is still carried out, unless it returns at once.
    void Press(int id)
    {
        Act("press " + std::to_string(id), [this, id] { robot::Press(::GetDlgItem(m_hWnd, id)); });
    }
    std::function<void()> onAct;
};

void TakeQuit()
{
    MSG message{};
    if (::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE)
        Print("quit %d is left", static_cast<int>(message.wParam));
    else
        Print("no quit is left");
}

void Quitting()
{
    Opener alone("Quit");
    alone.Act("quit", [] { ::PostQuitMessage(3); });
    alone.Run();
    TakeQuit();
    TakeQuit();

    Opener twice("Quit twice");
    twice.Act("quit",
              []
              {
                  ::PostQuitMessage(3);
                  ::PostQuitMessage(4);
              });
    twice.Run();
    TakeQuit();
    TakeQuit();

    Opener posted("Quit before a message");
    posted.Act("quit",
               [&]
               {
                   ::PostQuitMessage(3);
                   robot::Press(::GetDlgItem(posted.m_hWnd, 12));
                   Strike(VK_TAB);
               });
    posted.onAct = [] { Print("comes first"); };
    posted.Run();
    TakeQuit();

    Opener command("Quit from a command");
    command.Press(12);
    command.onAct = [] { ::PostQuitMessage(3); };
    command.Run();
    TakeQuit();

    Opener opening("Quit while it opens");
    opening.onOpen = [] { ::PostQuitMessage(3); };
    opening.Run();
    TakeQuit();

    Opener outer("Quit with another inside");
    outer.Press(10);
    outer.Act("quit", [] { ::PostQuitMessage(3); });
    outer.Run();
    TakeQuit();

    Opener message("Quit with a message up");
    message.Press(11);
    message.Act("quit", [] { ::PostQuitMessage(3); });
    message.Run();
    TakeQuit();

    Opener deep("Quit with a message above another");
    deep.Press(10);
    deep.Act("tell", [] { ::MessageBoxA(robot::ActiveDialog(), "told", "Message", MB_ICONERROR); });
    deep.Act("quit", [] { ::PostQuitMessage(3); });
    deep.Run();
    TakeQuit();

    Opener taken("Quit taken back");
    taken.Act("quit",
              []
              {
                  ::PostQuitMessage(3);
                  TakeQuit();
              });
    taken.Run();
    TakeQuit();
}

void EndingByOthers()
{
    Opener alone("Ended from outside");
    alone.Act("end", [&] { Print("gives %d", ::EndDialog(alone.m_hWnd, IDOK)); });
    alone.Run();

    Opener twice("Ended twice");
    twice.Act("end",
              [&]
              {
                  Print("gives %d", ::EndDialog(twice.m_hWnd, IDOK));
                  Print("gives %d", ::EndDialog(twice.m_hWnd, 5));
              });
    twice.Run();

    Opener command("Ended from a command");
    command.Press(12);
    command.onAct = [&] { Print("gives %d", ::EndDialog(command.m_hWnd, IDOK)); };
    command.Run();

    Opener opening("Ended while it opens");
    opening.onOpen = [&] { ::EndDialog(opening.m_hWnd, IDOK); };
    opening.Run();

    Opener outer("Ended below another");
    outer.Press(10);
    outer.Act("end the outer",
              [&] { Print("gives %d, enabled %d", ::EndDialog(outer.m_hWnd, 5), ::IsWindowEnabled(outer.m_hWnd)); });
    outer.Act("then the inner", [] { ::EndDialog(robot::ActiveDialog(), IDOK); });
    outer.Run();

    Opener below("Ended below a message");
    below.Press(11);
    below.Act("end the outer", [&] { ::EndDialog(below.m_hWnd, 5); });
    below.Act("answer", [] { robot::PressKey(VK_RETURN); });
    below.Run();

    Opener message("A message ended");
    message.Press(11);
    message.Act("end it", [] { ::EndDialog(robot::ActiveDialog(), 5); });
    message.Act("end what is no dialog",
                [&] { Print("gives %d %d", ::EndDialog(::GetFocus(), 5), ::EndDialog(nullptr, 5)); });
    message.Run();

    Opener destroyed("Destroyed");
    destroyed.Act("destroy", [&] { Print("gives %d", ::DestroyWindow(destroyed.m_hWnd)); });
    destroyed.Run();

    Opener above("Destroyed above another");
    above.Press(10);
    above.Act("destroy", [] { ::DestroyWindow(robot::ActiveDialog()); });
    above.Act("look", [&] { Print("enabled %d", ::IsWindowEnabled(above.m_hWnd)); });
    above.Run();

    Opener under("Destroyed below another");
    under.Press(10);
    under.Act("destroy the outer", [&] { Print("gives %d", ::DestroyWindow(under.m_hWnd)); });
    under.Run();
}

} // namespace

void Endings()
{
    Quitting();
    EndingByOthers();
}
