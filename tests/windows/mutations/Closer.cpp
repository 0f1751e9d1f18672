#include "Closer.h"

#include <commctrl.h>

#include <algorithm>

namespace
{

constexpr UINT limit = 60000; // milliseconds, for a whole call

// What is typed into fields.
const std::vector<std::string> texts = {"", "a", "0", "-1", "a(b;c)d|e", "\"", std::string(300, 'x'), "%s%d", "\xE4|'"};
const UINT keys[] = {VK_RETURN, VK_TAB, VK_SPACE, VK_DOWN, VK_UP, VK_DELETE};

HTREEITEM NextItem(HWND tree, UINT relation, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

// Goes down from the first item, at each step to the first child or to the next item.
void SelectTreeItem(HWND tree, Dice& dice)
{
    HTREEITEM item = NextItem(tree, TVGN_ROOT, nullptr);
    for (size_t steps = dice.Below(8); steps > 0; --steps)
    {
        HTREEITEM next = NextItem(tree, dice.Is(2) ? TVGN_CHILD : TVGN_NEXT, item);
        item = next != nullptr ? next : item;
    }
    SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

bool CanBeUsed(HWND control)
{
    const int id = GetDlgCtrlID(control);
    return id != IDOK && id != IDCANCEL && IsWindowVisible(control) != FALSE && IsWindowEnabled(control) != FALSE;
}

} // namespace

Closer::Closer(unsigned number) : m_dice(number), m_actsLeft(static_cast<int>(m_dice.Below(10))), m_robot(limit)
{
    WaitForWindow();
}

std::string Closer::Stuck() const
{
    return m_robot.HasGivenUp() ? m_robot.Log() : m_stuck;
}

void Closer::WaitForWindow()
{
    m_robot.When(
        "", [] { return robot::ActiveDialog() != nullptr; },
        [this]
        {
            // Before the act, since that may be what opens the next window.
            WaitForWindow();
            ActOn(robot::ActiveDialog());
        });
}

void Closer::ActOn(HWND window)
{
    if (robot::IsMessageBox(window))
        AnswerMessage(window);
    else
        ActOnDialog(window);
}

void Closer::AnswerMessage(HWND box)
{
    if (m_answered.insert(box).second)
        m_messages.push_back(robot::MessageTextOf(box));
    robot::AnswerBox(box);
}

void Closer::ActOnDialog(HWND dialog)
{
    constexpr int atRandom = 4;
    constexpr int byOk = atRandom + 1;
    constexpr int byCancel = byOk + 1;
    const int step = ++m_steps[dialog];
    robot::BeginAct();
    if (step <= atRandom && m_actsLeft > 0)
    {
        --m_actsLeft;
        ActAtRandom(dialog);
    }
    else if (step <= byOk)
    {
        m_steps[dialog] = byOk;
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    }
    else if (step <= byCancel)
        PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    else
    {
        m_stuck = "a dialog that neither OK nor Cancel closes: " + robot::TextOf(dialog);
        EndDialog(dialog, 0);
    }
}

void Closer::ActAtRandom(HWND dialog)
{
    std::vector<HWND> controls = robot::ChildrenOf(dialog);
    std::erase_if(controls, [](HWND control) { return !CanBeUsed(control); });
    if (controls.empty() || m_dice.Is(6))
        robot::PressKey(m_dice.Of(keys));
    else
        ActOnControl(m_dice.Of(controls));
}

void Closer::ActOnControl(HWND control)
{
    const std::string kind = robot::ClassOf(control);
    if (kind == "Edit")
        robot::ReplaceText(control, m_dice.Of(texts));
    else if (kind == "SysTreeView32")
        SelectTreeItem(control, m_dice);
    else if (kind == "ListBox" || kind == "ComboBox")
    {
        const auto count = robot::ItemsOf(control).size();
        robot::SelectItem(control, static_cast<int>(m_dice.Below(count + 2)) - 1);
        if (m_dice.Is(2))
            robot::DoubleClickAt(control, 5, 5);
    }
    else
        robot::Click(control);
}
