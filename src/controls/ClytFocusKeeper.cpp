#include "controls/ClytFocusKeeper.h"

namespace
{

bool CanTakeFocus(HWND window)
{
    return ::IsWindowEnabled(window) && ::IsWindowVisible(window);
}

// True when no window hears the keyboard although the dialog is in front. While another window is active nothing is to be
// done: the dialog gets the focus back with its activation.
bool IsDeaf(HWND dialog)
{
    const HWND active = ::GetActiveWindow();
    return ::GetFocus() == nullptr && (active == dialog || active == nullptr) && CanTakeFocus(dialog);
}

// The child of the dialog that is the window itself, or that surrounds it as a combo box surrounds its field.
CWnd* ControlAround(HWND window, HWND dialog)
{
    while (::GetParent(window) != dialog)
        window = ::GetParent(window);
    return CWnd::FromHandle(window);
}

} // namespace

ClytFocusKeeper::~ClytFocusKeeper()
{
    const CDialog& dialog = m_form.GetWindow();
    if (!::IsChild(dialog.m_hWnd, m_focus) || !IsDeaf(dialog.m_hWnd))
        return;
    const Counted pause = m_form.PauseRules();
    if (CanTakeFocus(m_focus))
        ::SetFocus(m_focus);
    else if (const CWnd* next = dialog.GetNextDlgTabItem(ControlAround(m_focus, dialog.m_hWnd)))
        dialog.GotoDlgCtrl(next);
}
