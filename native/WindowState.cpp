// The platform's functions for the text of a window, its state and its place.
#include "Desktop.h"

#include <algorithm>

using platform::Desktop;
using platform::Window;

namespace
{

// Where the client area of a window begins on the screen.
POINT ClientOrigin(HWND window)
{
    const Window* found = Desktop::Get().Find(window);
    return found != nullptr ? found->ClientOrigin() : POINT{0, 0};
}

} // namespace

BOOL SetWindowTextA(HWND window, LPCSTR text)
{
    return static_cast<BOOL>(SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextA(HWND window, char* buffer, int size)
{
    if (size > 0)
        *buffer = '\0';
    return static_cast<int>(
        SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthA(HWND window)
{
    return static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
}

BOOL EnableWindow(HWND window, BOOL enable)
{
    Window* found = Desktop::Get().Find(window);
    if (found == nullptr)
        return FALSE;
    const BOOL wasDisabled = found->HasStyle(WS_DISABLED) ? TRUE : FALSE;
    if ((enable == FALSE) == (wasDisabled != FALSE))
        return wasDisabled;
    const std::shared_ptr<Window> held = Desktop::Get().Hold(window);
    if (enable == FALSE)
        SendMessageA(window, WM_CANCELMODE, 0, 0);
    held->style ^= WS_DISABLED;
    if (enable == FALSE && held->IsFocused())
        SetFocus(nullptr);
    SendMessageA(window, WM_ENABLE, static_cast<WPARAM>(enable), 0);
    return wasDisabled;
}

BOOL ShowWindow(HWND window, int command)
{
    const std::shared_ptr<Window> found = Desktop::Get().Hold(window);
    if (found == nullptr)
        return FALSE;
    const BOOL wasVisible = found->HasStyle(WS_VISIBLE) ? TRUE : FALSE;
    if ((command != SW_HIDE) == (wasVisible != FALSE))
        return wasVisible;
    SendMessageA(window, WM_SHOWWINDOW, command != SW_HIDE ? TRUE : FALSE, 0);
    found->style ^= WS_VISIBLE;
    if (command == SW_HIDE && found->IsFocused())
        SetFocus(GetParent(window));
    return wasVisible;
}

BOOL SetWindowPos(HWND window, HWND /*insertAfter*/, int x, int y, int width, int height, UINT flags)
{
    const std::shared_ptr<Window> found = Desktop::Get().Hold(window);
    if (found == nullptr)
        return FALSE;
    const SIZE before = found->ClientSize();
    if ((flags & SWP_NOMOVE) == 0)
        found->MoveTo({x, y});
    if ((flags & SWP_NOSIZE) == 0)
        found->Resize({width, height});
    if ((flags & SWP_HIDEWINDOW) != 0)
        found->style &= ~DWORD{WS_VISIBLE};
    if ((flags & SWP_SHOWWINDOW) != 0)
        found->style |= WS_VISIBLE;
    if (found->parent == nullptr && (flags & UINT{SWP_NOACTIVATE | SWP_HIDEWINDOW}) == 0)
        SetActiveWindow(window);
    const SIZE after = found->ClientSize();
    if (before.cx != after.cx || before.cy != after.cy)
        SendMessageA(window, WM_SIZE, 0, MAKELPARAM(after.cx, after.cy));
    return TRUE;
}

BOOL GetClientRect(HWND window, RECT* rect)
{
    const Window* found = Desktop::Get().Find(window);
    if (found == nullptr)
        return FALSE;
    const SIZE size = found->ClientSize();
    *rect = {0, 0, size.cx, size.cy};
    return TRUE;
}

BOOL GetWindowRect(HWND window, RECT* rect)
{
    const Window* found = Desktop::Get().Find(window);
    if (found == nullptr)
        return FALSE;
    *rect = found->ScreenPlace();
    return TRUE;
}

int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count)
{
    const POINT start = ClientOrigin(from);
    const POINT end = ClientOrigin(to);
    for (UINT index = 0; index < count; ++index)
        points[index] = {points[index].x + start.x - end.x, points[index].y + start.y - end.y};
    return static_cast<int>(MAKEWPARAM(start.x - end.x, start.y - end.y));
}
