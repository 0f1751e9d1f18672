// Generated acts on a dialog with a control of each kind, whose states a program changes while a user works it: it hides,
// shows, disables and enables controls, moves the focus and the marks, tells messages and opens a dialog inside.
#include "Stage.h"

#include "support/Dice.h"

namespace
{

constexpr int firstId = 10;
constexpr int lastId = 20;

class Meddling
{
public:
    explicit Meddling(unsigned number) : m_dice(number)
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
        m_stage.onClick[19] = [] { Inner(firstId).DoModal(); };
        m_stage.onClick[lastId] = [] { ::AfxMessageBox("told"); };
    }

    void Run()
    {
        for (size_t acts = 4 + m_dice.Below(12); acts > 0; --acts)
            m_stage.Act("act", [this] { Act(); });
        // All that is up comes down.
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
    // A child of the dialog on top.
    HWND Child() { return m_dice.Of(robot::ChildrenOf(robot::ActiveDialog())); }

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
        (this->*m_dice.Of(doings))();
    }

    void Show()
    {
        const HWND child = Child();
        const bool isOn = m_dice.Is(3);
        Print("show %d %d", ::GetDlgCtrlID(child), isOn);
        ::ShowWindow(child, isOn ? SW_SHOW : SW_HIDE);
    }
    void Enable()
    {
        const HWND child = Child();
        const bool isOn = m_dice.Is(3);
        Print("enable %d %d", ::GetDlgCtrlID(child), isOn);
        ::EnableWindow(child, isOn ? TRUE : FALSE);
    }
    void Mark()
    {
        const int id = 13 + static_cast<int>(m_dice.Below(4));
        const auto mark = static_cast<unsigned>(m_dice.Below(2));
        Print("mark %d %u", id, mark);
        ::SendMessageA(::GetDlgItem(m_stage.m_hWnd, id), BM_SETCHECK, mark, 0);
    }
    void Focus()
    {
        const HWND child = Child();
        const bool isByDialog = m_dice.Is(2);
        Print("focus %d %d", ::GetDlgCtrlID(child), isByDialog);
        if (isByDialog)
            robot::Focus(child);
        else
            ::SetFocus(child);
    }
    void Click()
    {
        const HWND child = Child();
        const bool isByMouse = m_dice.Is(2);
        Print("click %d %d", ::GetDlgCtrlID(child), isByMouse);
        if (!isByMouse)
            robot::Press(child);
        else if (::IsWindowVisible(child) != FALSE && ::IsWindowEnabled(child) != FALSE)
            robot::Click(child);
    }
    void Key()
    {
        static constexpr UINT keys[] = {VK_TAB, VK_TAB, VK_DOWN, VK_UP, VK_SPACE, VK_RETURN, 'P', 'S', 'T', 'O', 'L'};
        const UINT key = m_dice.Of(keys);
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

    Dice m_dice;
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
