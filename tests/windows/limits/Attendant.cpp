#include "Attendant.h"

#include "robot/WindowRobot.h"

#include <commctrl.h>

namespace
{

constexpr int treeControl = 1000;

Attendant* current = nullptr;

} // namespace

Attendant::Attendant() : m_timer(SetTimer(nullptr, 0, 10, Tick))
{
    current = this;
}

Attendant::~Attendant()
{
    KillTimer(nullptr, m_timer);
    current = nullptr;
}

void Attendant::Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    HWND window = robot::ActiveDialog();
    if (current != nullptr && window != nullptr)
        current->End(window);
}

void Attendant::End(HWND window)
{
    if (robot::IsMessageBox(window))
    {
        m_seen += robot::MessageTextOf(window) + ";";
        robot::Press(GetDlgItem(window, IDOK));
        return;
    }
    if (!m_confirmed.insert(window).second)
    {
        robot::Press(GetDlgItem(window, IDCANCEL));
        return;
    }
    m_seen += robot::TextOf(window) + ";";
    if (HWND tree = GetDlgItem(window, treeControl))
        SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    robot::Press(GetDlgItem(window, IDOK));
}
