// The keys of a dialog: those that move the focus, press a button, or find a control by its access key.
#include "Desktop.h"
#include "DialogWindow.h"
#include "MessageQueue.h"

#include <cctype>

namespace platform
{

namespace
{

void Press(const DialogWindow& dialog, int id, HWND button)
{
    SendMessageA(dialog.handle, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void PressDefault(const DialogWindow& dialog, HWND focused)
{
    if (HasCode(focused, DLGC_DEFPUSHBUTTON))
    {
        Press(dialog, GetDlgCtrlID(focused), focused);
        return;
    }
    const LRESULT answer = SendMessageA(dialog.handle, DM_GETDEFID, 0, 0);
    if (HIWORD(answer) != DC_HASDEFID)
        return;
    const int id = LOWORD(answer);
    const HWND button = GetDlgItem(dialog.handle, id);
    if (button == nullptr || IsWindowEnabled(button))
        Press(dialog, id, button);
}

// An option button that an arrow key reaches is clicked; anything else only gets the focus.
void MoveInGroup(const DialogWindow& dialog, HWND focused, bool backwards)
{
    Window* from = Desktop::Get().Find(focused);
    const Window* next = from != nullptr ? dialog.NextInGroup(*from, backwards) : nullptr;
    if (next == nullptr)
        return;
    const HWND target = next->handle;
    if (HasCode(target, DLGC_RADIOBUTTON))
    {
        SetFocus(target);
        if (SendMessageA(target, BM_GETCHECK, 0, 0) == BST_UNCHECKED)
            SendMessageA(target, BM_CLICK, 0, 0);
    }
    else
        SendMessageA(dialog.handle, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
}

// The letter after a single `&`, in lower case; 0 without one.
char AccessKeyOf(const std::string& text)
{
    for (size_t at = text.find('&'); at != std::string::npos && at + 1 < text.size(); at = text.find('&', at + 2))
    {
        if (text[at + 1] != '&')
            return static_cast<char>(std::tolower(static_cast<unsigned char>(text[at + 1])));
    }
    return '\0';
}

// What a label names is the control after it; a button is clicked.
void TakeAccess(const DialogWindow& dialog, HWND target)
{
    if (HasCode(target, DLGC_BUTTON))
    {
        SendMessageA(target, BM_CLICK, 0, 0);
        return;
    }
    SendMessageA(dialog.handle, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    SendMessageA(dialog.handle, WM_NEXTDLGCTL, 0, FALSE);
}

// The search begins with the child that has the focus.
bool TakeAccessKey(const DialogWindow& dialog, WPARAM character)
{
    const auto wanted = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    const WindowRow& row = dialog.children;
    const Window* focused = dialog.FocusedChild();
    auto place = focused != nullptr ? WindowRow::const_iterator(focused->inRow) : row.begin();
    for (size_t step = 0; step < row.size(); ++step)
    {
        if (place == row.end())
            place = row.begin();
        const Window& child = **place++;
        const bool isText = HasCode(child.handle, DLGC_BUTTON | DLGC_STATIC);
        if (!isText || !child.IsReady() || AccessKeyOf(child.text) != wanted)
            continue;
        TakeAccess(dialog, child.handle);
        return true;
    }
    return false;
}

bool TakeKeyDown(const DialogWindow& dialog, const MSG& message)
{
    if (HasCode(message.hwnd, DLGC_WANTALLKEYS, message.wParam))
        return false;
    switch (message.wParam)
    {
    case VK_TAB:
        SendMessageA(dialog.handle, WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0 ? TRUE : FALSE, FALSE);
        return true;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
        if (HasCode(message.hwnd, DLGC_WANTARROWS))
            return false;
        MoveInGroup(dialog, message.hwnd, message.wParam == VK_LEFT || message.wParam == VK_UP);
        return true;
    case VK_RETURN: PressDefault(dialog, message.hwnd); return true;
    case VK_ESCAPE: Press(dialog, IDCANCEL, GetDlgItem(dialog.handle, IDCANCEL)); return true;
    default: return false;
    }
}

} // namespace

bool TakeDialogKey(HWND window, const MSG& message)
{
    const auto* dialog = Desktop::Get().FindAs<DialogWindow>(window);
    Window* receiver = Desktop::Get().Find(message.hwnd);
    if (dialog == nullptr || receiver == nullptr || receiver->Root().handle != window)
        return false;
    switch (message.message)
    {
    case WM_KEYDOWN: return TakeKeyDown(*dialog, message);
    case WM_CHAR:
        return !HasCode(message.hwnd, DLGC_WANTCHARS | DLGC_WANTALLKEYS, message.wParam) &&
               message.wParam != VK_SPACE && TakeAccessKey(*dialog, message.wParam);
    case WM_SYSCHAR: return TakeAccessKey(*dialog, message.wParam);
    default: return false;
    }
}

} // namespace platform
