// Sees every window of this thread before it is created, and can refuse it.
#pragma once

#include <windows.h>

#include <functional>

class CreationHook
{
public:
    // `allow` answers false to refuse a window.
    explicit CreationHook(std::function<bool(const CREATESTRUCTA&)> allow)
        : m_hook(SetWindowsHookExA(WH_CBT, Procedure, nullptr, GetCurrentThreadId()))
    {
        Allow() = std::move(allow);
    }
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;
    ~CreationHook()
    {
        UnhookWindowsHookEx(m_hook);
        Allow() = nullptr;
    }

private:
    static std::function<bool(const CREATESTRUCTA&)>& Allow()
    {
        static std::function<bool(const CREATESTRUCTA&)> allow;
        return allow;
    }
    static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND && !Allow()(*reinterpret_cast<CBT_CREATEWNDA*>(lParam)->lpcs))
            return 1;
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};
