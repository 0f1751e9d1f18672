#include "MessageQueue.h"

#include "Desktop.h"
#include "FaultPlan.h"

#include <algorithm>
#include <array>
#include <deque>
#include <optional>
#include <utility>
#include <vector>

namespace platform
{

namespace
{

struct Timer
{
    UINT_PTR id;
    UINT interval;
    ULONGLONG due;
    TIMERPROC procedure;
};

struct Key
{
    WORD code;
    bool isUp;
};

std::deque<MSG> posted;
std::optional<int> quit; // the exit code of a quit message
std::deque<Key> typed;
std::vector<Timer> timers;
UINT_PTR lastTimer = 0;
ULONGLONG now = 1000;
std::array<bool, 256> isDown{};
bool isAltAlone = false;

bool IsDown(UINT key)
{
    return isDown[key];
}

bool TakeQuit(MSG& message)
{
    if (!quit)
        return false;
    message = {nullptr, WM_QUIT, static_cast<WPARAM>(*std::exchange(quit, std::nullopt)), 0, 0, {}};
    return true;
}

// A key is down from the moment that its message is taken. While Alt is down keys have their other messages, which the
// active window gets when no window has the focus.
bool TakeTypedKey(MSG& message)
{
    if (typed.empty())
        return false;
    const Key key = typed.front();
    typed.pop_front();
    isDown[key.code & 0xFFU] = !key.isUp;
    const Desktop& desktop = Desktop::Get();
    const bool isAlt = key.code == VK_MENU;
    // Alt that comes up after another key does not open the menu.
    isAltAlone = isAlt && (!key.isUp || isAltAlone);
    const bool isSystem = desktop.focus == nullptr || (isAlt ? isAltAlone : IsDown(VK_MENU) && !IsDown(VK_CONTROL));
    const UINT down = isSystem ? WM_SYSKEYDOWN : WM_KEYDOWN;
    const UINT up = isSystem ? WM_SYSKEYUP : WM_KEYUP;
    const HWND receiver = desktop.focus != nullptr ? desktop.focus : desktop.active;
    message = {receiver, key.isUp ? up : down, key.code, key.isUp ? static_cast<LPARAM>(0xC0000001) : LPARAM{1}, 0, {}};
    return true;
}

bool TakeTimer(MSG& message)
{
    if (timers.empty())
        return false;
    const auto next = std::ranges::min_element(timers, {}, &Timer::due);
    now = std::max(now, next->due);
    next->due = now + next->interval;
    message = {nullptr, WM_TIMER, next->id, reinterpret_cast<LPARAM>(next->procedure), 0, {}};
    return true;
}

// The character of a key, 0 for one that has none.
char CharacterOf(WPARAM key)
{
    if (key >= 'A' && key <= 'Z')
        return static_cast<char>(IsDown(VK_SHIFT) ? key : key - 'A' + 'a');
    const bool isPlain = (key >= '0' && key <= '9') || key == VK_SPACE || key == VK_BACK || key == VK_TAB ||
                         key == VK_RETURN || key == VK_ESCAPE;
    return isPlain ? static_cast<char>(key) : '\0';
}

} // namespace

bool TakeMessage(MSG& message)
{
    if (posted.empty())
        return TakeQuit(message) || TakeTypedKey(message) || TakeTimer(message);
    message = posted.front();
    posted.pop_front();
    return true;
}

bool IsIdle()
{
    return posted.empty() && !quit && typed.empty();
}

bool TakePosted(HWND window, UINT message)
{
    const auto found = std::ranges::find_if(posted, [&](const MSG& waiting)
                                            { return waiting.hwnd == window && waiting.message == message; });
    if (found == posted.end())
        return false;
    posted.erase(found);
    return true;
}

void TranslateKey(const MSG& message)
{
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN)
        return;
    const char character = CharacterOf(message.wParam);
    if (character != '\0')
        PostMessageA(message.hwnd, message.message == WM_KEYDOWN ? WM_CHAR : WM_SYSCHAR,
                     static_cast<unsigned char>(character), 1);
}

void Dispatch(const MSG& message)
{
    if (message.message == WM_TIMER)
        reinterpret_cast<TIMERPROC>(message.lParam)(nullptr, WM_TIMER, message.wParam, static_cast<DWORD>(now));
    else
        SendMessageA(message.hwnd, message.message, message.wParam, message.lParam);
}

} // namespace platform

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!IsWindow(window))
        return FALSE;
    const platform::PlatformAtWork working;
    platform::posted.push_back({window, message, wParam, lParam, 0, {}});
    return TRUE;
}

void PostQuitMessage(int exitCode)
{
    platform::quit = exitCode;
}

BOOL PeekMessageA(MSG* message, HWND /*window*/, UINT /*first*/, UINT /*last*/, UINT /*flags*/)
{
    return platform::TakeQuit(*message);
}

// Timers of windows are not used: each has a procedure.
UINT_PTR SetTimer(HWND /*window*/, UINT_PTR /*id*/, UINT milliseconds, TIMERPROC procedure)
{
    const UINT_PTR id = ++platform::lastTimer;
    platform::timers.push_back({id, milliseconds, platform::now + milliseconds, procedure});
    return id;
}

BOOL KillTimer(HWND /*window*/, UINT_PTR id)
{
    return std::erase_if(platform::timers, [id](const platform::Timer& timer) { return timer.id == id; }) != 0;
}

ULONGLONG GetTickCount64()
{
    return platform::now;
}

UINT SendInput(UINT count, INPUT* inputs, int /*size*/)
{
    for (UINT index = 0; index < count; ++index)
        platform::typed.push_back({inputs[index].ki.wVk, (inputs[index].ki.dwFlags & KEYEVENTF_KEYUP) != 0});
    return count;
}

short GetKeyState(int key)
{
    return platform::isDown[static_cast<unsigned char>(key)] ? static_cast<short>(-128) : short{0};
}

UINT MapVirtualKeyA(UINT /*code*/, UINT /*kind*/)
{
    return 0;
}
