// All windows of the process, and what exists only once: focus, active window, mouse capture.
#pragma once

#include "Window.h"

#include <unordered_map>

namespace platform
{

class Desktop
{
public:
    static Desktop& Get();

    // Null for a stale or a null handle.
    Window* Find(HWND window) const;
    // The same for one class of windows.
    template <class WINDOW>
    WINDOW* FindAs(HWND window) const
    {
        return dynamic_cast<WINDOW*>(Find(window));
    }
    // Keeps a window's object alive even if the window is destroyed meanwhile.
    std::shared_ptr<Window> Hold(HWND window) const;
    size_t Count() const { return m_windows.size(); }
    // Top-level windows, the most recently activated one first.
    const std::vector<HWND>& TopLevels() const { return m_topLevels; }

    // Gives the window its handle and a place in the tree.
    Window& Adopt(std::unique_ptr<Window> window, Window* parentOrOwner);
    // Takes a window out of the tree, without a message.
    void Forget(HWND window);

    std::vector<HWND> OwnedBy(const Window& owner) const;
    // The top-level window that is activated when this one goes: its owner, or another; null when none can be.
    HWND SuccessorOf(const Window& going) const;
    // Activates a top-level window; null activates none. The windows get their messages.
    void Activate(HWND window);
    // Moves the focus inside the active window, with the messages for both windows.
    HWND MoveFocus(HWND window);

    HWND focus = nullptr;
    HWND active = nullptr;
    HWND capture = nullptr;

private:
    void ForgetTopLevel(const Window& dying);

    std::unordered_map<HWND, std::shared_ptr<Window>> m_windows;
    std::vector<HWND> m_topLevels;
    uintptr_t m_lastHandle = 0x10000;
};

} // namespace platform
