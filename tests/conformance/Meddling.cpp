// Generated acts on a dialog with a control of each kind, whose states a program changes while a user works it: it hides,
// shows, disables and enables controls, moves the focus and the marks, tells messages and opens a dialog inside.
#include "Stage.h"

#include "res/resource.h"

#include <iterator>
#include <random>

namespace
{

constexpr int firstId = 10;
constexpr int lastId = 20;

class Within : public Recorded<CDialog>
{
public:
    Within() : Recorded(IDD_PROPERTIES) {}

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        m_edit.CreateEx(WS_EX_CLIENTEDGE, "Edit", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(5, 5, 90, 25), this,
                        firstId);
        m_ok.Create("OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, CRect(5, 30, 90, 50), this, IDOK);
        return TRUE;
    }

private:
    Recorded<CEdit> m_edit;
    Recorded<CButton> m_ok;
};

class Meddling
{
public:
    explicit Meddling(unsigned number) : m_random(number)
    {
        m_stage.Edit(firstId);
        m_stage.Static(11, "&Label");
        m_stage.Button(12, "&Push");
        m_stage.Button(13, "&Check", BS_AUTOCHECKBOX);
        m_stage.List(17);
        m_stage.Edit(18);
        m_stage.Button(14, "&First", BS_AUTORADIOBUTTON | WS_GROUP);
        m_stage.Button(15, "&Second", BS_AUTORADIOBUTTON);
        m_stage.Button(16, "&Third", BS_AUTORADIOBUTTON);
        m_stage.Button(19, "&Open");
        m_stage.Button(lastId, "&Tell");
        m_stage.Ok();
        m_stage.Cancel();
        m_stage.onCommand = [](int id, int code)
        {
            if (code != BN_CLICKED)
                return;
            if (id == 19)
                Within().DoModal();
            else if (id == lastId)
                ::AfxMessageBox("told");
        };
    }

    void Run()
    {
        const unsigned acts = 4 + Any(12);
        for (unsigned act = 0; act < acts; ++act)
            m_stage.Act("act", [this] { Act(); });
        // Whatever is up comes down.
        for (int time = 0; time < 3; ++time)
            m_stage.Act("close",
                        [this]
                        {
                            const HWND top = robot::ActiveDialog();
                            if (top != m_stage.m_hWnd)
                                robot::Press(::GetDlgItem(top, IDOK));
                        });
        m_stage.Run();
    }

private:
    unsigned Any(size_t count) { return static_cast<unsigned>(m_random() % count); }

    // A child of the dialog on top.
    HWND Child()
    {
        const std::vector<HWND> children = robot::ChildrenOf(robot::ActiveDialog());
        return children[Any(children.size())];
    }

    void Act()
    {
        if (robot::IsMessageBox(robot::ActiveDialog()))
        {
            robot::Press(::GetDlgItem(robot::ActiveDialog(), IDOK));
            return;
        }
        using Doing = void (Meddling::*)();
        static constexpr Doing doings[] = {&Meddling::Show, &Meddling::Show,  &Meddling::Enable, &Meddling::Enable,
                                           &Meddling::Mark, &Meddling::Focus, &Meddling::Click,  &Meddling::Click,
                                           &Meddling::Key,  &Meddling::Key,   &Meddling::Key,    &Meddling::Tell};
        (this->*doings[Any(std::size(doings))])();
    }

    void Show()
    {
        const HWND child = Child();
        const bool isOn = Any(3) == 0;
        Print("show %d %d", ::GetDlgCtrlID(child), isOn);
        ::ShowWindow(child, isOn ? SW_SHOW : SW_HIDE);
    }
    void Enable()
    {
        const HWND child = Child();
        const bool isOn = Any(3) == 0;
        Print("enable %d %d", ::GetDlgCtrlID(child), isOn);
        ::EnableWindow(child, isOn ? TRUE : FALSE);
    }
    void Mark()
    {
        const int id = 13 + static_cast<int>(Any(4));
        const unsigned mark = Any(2);
        Print("mark %d %u", id, mark);
        ::SendMessageA(::GetDlgItem(m_stage.m_hWnd, id), BM_SETCHECK, mark, 0);
    }
    void Focus()
    {
        const HWND child = Child();
        const bool isByDialog = Any(2) == 0;
        Print("focus %d %d", ::GetDlgCtrlID(child), isByDialog);
        if (isByDialog)
            robot::Focus(child);
        else
            ::SetFocus(child);
    }
    void Click()
    {
        const HWND child = Child();
        const bool isByMouse = Any(2) == 0;
        Print("click %d %d", ::GetDlgCtrlID(child), isByMouse);
        if (!isByMouse)
            robot::Press(child);
        else if (::IsWindowVisible(child) != FALSE && ::IsWindowEnabled(child) != FALSE)
            robot::Click(child);
    }
    void Key()
    {
        static constexpr UINT keys[] = {VK_TAB, VK_TAB, VK_DOWN, VK_UP, VK_SPACE, VK_RETURN, 'P', 'S', 'T', 'O', 'L'};
        const UINT key = keys[Any(std::size(keys))];
        Print("key %u", key);
        if (key < 'A')
            robot::PressKey(key);
        else
            robot::PressMnemonic(static_cast<char>(key));
    }
    void Tell()
    {
        Print("tell");
        ::AfxMessageBox("told");
    }

    std::mt19937 m_random;
    Stage m_stage{"Meddling"};
};

} // namespace

void Meddled(unsigned begin, unsigned end, bool isShown)
{
    for (unsigned number = begin; number < end; ++number)
    {
        Digest digest;
        PrintInto(isShown ? nullptr : &digest);
        Meddling(number).Run();
        PrintInto(nullptr);
        Print("%u %016llx", number, static_cast<unsigned long long>(digest.Value()));
    }
}
