#include "ButtonWindow.h"

#include "DialogWindow.h"

#include <algorithm>

namespace platform
{

LRESULT ButtonWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE: return DialogCodes();
    case BM_GETCHECK: return static_cast<LRESULT>(m_check);
    case BM_SETCHECK: SetCheck(static_cast<UINT>(wParam)); return 0;
    case BM_GETSTATE: return static_cast<LRESULT>(m_check | (m_isPushed ? UINT{BST_PUSHED} : 0U));
    case BM_SETSTATE: m_isPushed = wParam != 0; return 0;
    case BM_SETSTYLE:
        style = (style & ~DWORD{BS_TYPEMASK}) | (static_cast<DWORD>(wParam) & BS_TYPEMASK);
        OnStyleChanged();
        return 0;
    case WM_NCDESTROY: TellKind(BS_PUSHBUTTON); return 0;
    case BM_CLICK:
        Send(WM_LBUTTONDOWN);
        Send(WM_LBUTTONUP);
        return 0;
    case WM_LBUTTONDOWN:
        ::SetFocus(handle);
        Press();
        return 0;
    case WM_LBUTTONDBLCLK: Press(); return 0;
    case WM_LBUTTONUP: Release(!IsInside(lParam)); return 0;
    case WM_KEYDOWN:
        if (wParam == VK_SPACE)
        {
            // Unlike the mouse, the key is held before it has the capture.
            m_isHeld = true;
            Send(BM_SETSTATE, TRUE);
            ::SetCapture(handle);
        }
        return 0;
    case WM_KEYUP:
        if (wParam == VK_SPACE)
            Release(false);
        return 0;
    case WM_CAPTURECHANGED:
        if (reinterpret_cast<HWND>(lParam) != handle)
            LoseCapture();
        return 0;
    case WM_KILLFOCUS:
        if (::GetCapture() == handle)
            ::ReleaseCapture();
        return 0;
    default: return Window::Handle(message, wParam, lParam);
    }
}

void ButtonWindow::TellKind(DWORD kind) const
{
    if (auto* dialog = dynamic_cast<DialogWindow*>(parent))
        dialog->NoteButton(handle, kind == BS_DEFPUSHBUTTON);
}

LRESULT ButtonWindow::DialogCodes() const
{
    switch (Kind())
    {
    case BS_PUSHBUTTON: return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON: return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    case BS_AUTORADIOBUTTON: return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case BS_GROUPBOX: return DLGC_STATIC;
    default: return DLGC_BUTTON;
    }
}

void ButtonWindow::Press()
{
    ::SetCapture(handle);
    m_isHeld = true;
    Send(BM_SETSTATE, TRUE);
}

// The command comes last: a handler may destroy the window.
void ButtonWindow::Release(bool isOutside)
{
    if (!m_isHeld)
        return;
    m_isHeld = false;
    if (!m_isPushed)
    {
        ::ReleaseCapture();
        return;
    }
    Send(BM_SETSTATE, FALSE);
    if (isOutside)
    {
        ::ReleaseCapture();
        return;
    }
    if (Kind() == BS_AUTOCHECKBOX)
        Send(BM_SETCHECK, m_check == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
    else if (Kind() == BS_AUTORADIOBUTTON)
        Send(BM_SETCHECK, BST_CHECKED);
    ::ReleaseCapture();
    Notify(BN_CLICKED);
}

void ButtonWindow::LoseCapture()
{
    if (!m_isHeld)
        return;
    m_isHeld = false;
    if (m_isPushed)
        Send(BM_SETSTATE, FALSE);
}

// An option button is a tab stop as long as it is the chosen one, and clears the others of its group.
void ButtonWindow::SetCheck(UINT check)
{
    const bool isOption = Kind() == BS_AUTORADIOBUTTON;
    if (isOption)
        style = check != BST_UNCHECKED ? style | WS_TABSTOP : style & ~DWORD{WS_TABSTOP};
    m_check = check;
    if (isOption && check != BST_UNCHECKED && parent != nullptr)
        UncheckOthers();
}

// The platform skips options that cannot be used. It begins with the one before, and continues after this one.
void ButtonWindow::UncheckOthers() const
{
    std::vector<Window*> members = OthersOfGroup();
    std::erase_if(members, [](const Window* member) { return !member->IsReady(); });
    if (!members.empty())
        std::rotate(members.begin(), std::prev(members.end()), members.end());
    std::vector<HWND> others;
    for (const Window* member : members)
    {
        const auto* button = dynamic_cast<const ButtonWindow*>(member);
        if (button != nullptr && button->Kind() == BS_AUTORADIOBUTTON)
            others.push_back(button->handle);
    }
    for (HWND other : others)
        ::SendMessageA(other, BM_SETCHECK, BST_UNCHECKED, 0);
}

bool ButtonWindow::IsInside(LPARAM point) const
{
    const SIZE size = ClientSize();
    const RECT area{0, 0, size.cx, size.cy};
    return ::PtInRect(&area, {static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))}) != FALSE;
}

} // namespace platform
