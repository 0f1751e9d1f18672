#include "controls/ClytFocusKeeper.h"

namespace
{

// A dialog that is about to open is not visible yet, and neither are its controls: each says for itself whether it is
// meant to be.
bool CanTakeFocus(HWND window, HWND dialog)
{
    for (; window != dialog; window = ::GetParent(window))
    {
        if (!::IsWindowEnabled(window) || (::GetWindowLongPtrA(window, GWL_STYLE) & WS_VISIBLE) == 0)
            return false;
    }
    return true;
}

// True when no window hears the keyboard although the dialog is in front. While another window is active nothing is to be
// done: the dialog gets the focus back with its activation.
bool IsDeaf(HWND dialog)
{
    const HWND active = ::GetActiveWindow();
    return ::GetFocus() == nullptr && (active == dialog || active == nullptr) && ::IsWindowEnabled(dialog);
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
    const CDialog& dialog = form.GetWindow();
    if (!::IsChild(dialog.m_hWnd, focus) || !IsDeaf(dialog.m_hWnd))
        return;
    const ClytCounted pause = form.PauseRules();
    if (CanTakeFocus(focus, dialog.m_hWnd))
        ::SetFocus(focus);
    else if (const CWnd* next = dialog.GetNextDlgTabItem(ControlAround(focus, dialog.m_hWnd)))
        dialog.GotoDlgCtrl(next);
}
