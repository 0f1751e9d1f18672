// Ways in which a modal run ends other than by its own OK: each counts as Cancel.
#pragma once

#include <windows.h>

struct OtherEnding
{
    const char* name;
    void (*act)(HWND dialog);
    bool leavesQuit; // for the loop of the host
};

inline const OtherEnding otherEndings[] = {
    {"a quit message", [](HWND) { PostQuitMessage(7); }, true},
    {"the end by others", [](HWND dialog) { EndDialog(dialog, IDOK); }, false},
    {"its destruction", [](HWND dialog) { DestroyWindow(dialog); }, false},
};

// Takes the quit message off the queue of the thread; false without one.
inline bool TakeQuit()
{
    MSG message{};
    return PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE && message.wParam == 7;
}
