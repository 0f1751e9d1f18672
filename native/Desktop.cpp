#include "Desktop.h"

#include "FaultPlan.h"

#include <algorithm>
#include <utility>

namespace platform
{

namespace
{

LRESULT ClassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const PlatformAtWork working;
    const std::shared_ptr<Window> object = Desktop::Get().Hold(window);
    return object != nullptr ? object->Handle(message, wParam, lParam) : 0;
}

} // namespace

Desktop& Desktop::Get()
{
    static Desktop desktop;
    return desktop;
}

Window* Desktop::Find(HWND window) const
{
    const auto found = m_windows.find(window);
    return found != m_windows.end() ? found->second.get() : nullptr;
}

std::shared_ptr<Window> Desktop::Hold(HWND window) const
{
    const auto found = m_windows.find(window);
    return found != m_windows.end() ? found->second : nullptr;
}

Window& Desktop::Adopt(std::unique_ptr<Window> window, Window* parentOrOwner)
{
    m_lastHandle += 2;
    window->handle = reinterpret_cast<HWND>(m_lastHandle);
    window->procedure = ClassProcedure;
    if (window->HasStyle(WS_CHILD))
    {
        window->parent = parentOrOwner;
        window->inRow = parentOrOwner->children.insert(parentOrOwner->children.end(), window.get());
        window->inIds = parentOrOwner->childrenById.emplace(window->id, window.get());
    }
    else
    {
        window->owner = parentOrOwner != nullptr ? &parentOrOwner->Root() : nullptr;
        m_topLevels.insert(m_topLevels.begin(), window->handle);
    }
    return *(m_windows[window->handle] = std::move(window));
}

void Desktop::Forget(HWND window)
{
    const std::shared_ptr<Window> dying = Hold(window);
    if (dying->parent != nullptr)
    {
        dying->parent->children.erase(dying->inRow);
        dying->parent->childrenById.erase(dying->inIds);
    }
    else
        ForgetTopLevel(*dying);
    m_windows.erase(window);
    for (HWND* place : {&focus, &active, &capture})
    {
        if (*place == window)
            *place = nullptr;
    }
}

// Only windows of the top level are owners, and only they have one.
void Desktop::ForgetTopLevel(const Window& dying)
{
    std::erase(m_topLevels, dying.handle);
    for (const HWND each : m_topLevels)
    {
        Window& other = *Find(each);
        if (other.owner == &dying)
            other.owner = nullptr;
    }
}

std::vector<HWND> Desktop::OwnedBy(const Window& owner) const
{
    std::vector<HWND> owned;
    std::ranges::copy_if(m_topLevels, std::back_inserter(owned),
                         [&](HWND each) { return Find(each)->owner == &owner; });
    return owned;
}

HWND Desktop::SuccessorOf(const Window& going) const
{
    if (going.owner != nullptr && going.owner->IsReady())
        return going.owner->handle;
    const auto found =
        std::ranges::find_if(m_topLevels, [&](HWND each) { return each != going.handle && Find(each)->IsReady(); });
    return found != m_topLevels.end() ? *found : nullptr;
}

void Desktop::Activate(HWND window)
{
    if (active == window)
        return;
    const HWND previous = std::exchange(active, window);
    if (previous != nullptr)
        SendMessageA(previous, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(window));
    if (active != window || Find(window) == nullptr)
        return;
    std::erase(m_topLevels, window);
    m_topLevels.insert(m_topLevels.begin(), window);
    SendMessageA(window, WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(previous));
}

HWND Desktop::MoveFocus(HWND window)
{
    const HWND previous = focus;
    if (previous == window)
        return previous;
    focus = window;
    if (Find(previous) != nullptr)
        SendMessageA(previous, WM_KILLFOCUS, reinterpret_cast<WPARAM>(window), 0);
    if (focus == window && window != nullptr)
        SendMessageA(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(previous), 0);
    return previous;
}

} // namespace platform

using platform::Desktop;
using platform::Window;

namespace
{

bool IsWithin(const Window* window, DWORD flag, bool wanted)
{
    for (; window != nullptr; window = window->parent)
    {
        if (window->HasStyle(flag) != wanted)
            return false;
    }
    return true;
}

} // namespace

HWND SetFocus(HWND window)
{
    Desktop& desktop = Desktop::Get();
    Window* wanted = desktop.Find(window);
    if (window != nullptr && (wanted == nullptr || !IsWithin(wanted, WS_DISABLED, false)))
        return nullptr;
    if (desktop.focus == window)
        return window;
    if (wanted != nullptr)
        desktop.Activate(wanted->Root().handle);
    return desktop.MoveFocus(window);
}

HWND GetFocus()
{
    return Desktop::Get().focus;
}

HWND GetActiveWindow()
{
    return Desktop::Get().active;
}

HWND SetActiveWindow(HWND window)
{
    Desktop& desktop = Desktop::Get();
    const HWND previous = desktop.active;
    desktop.Activate(window);
    Window* focused = desktop.Find(desktop.focus);
    if (desktop.active == window && (focused == nullptr || focused->Root().handle != window))
        desktop.MoveFocus(window);
    return previous;
}

HWND SetCapture(HWND window)
{
    Desktop& desktop = Desktop::Get();
    const HWND previous = std::exchange(desktop.capture, window);
    if (previous != nullptr)
        SendMessageA(previous, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
    return previous;
}

HWND GetCapture()
{
    return Desktop::Get().capture;
}

BOOL ReleaseCapture()
{
    SetCapture(nullptr);
    return TRUE;
}

BOOL IsWindow(HWND window)
{
    return Desktop::Get().Find(window) != nullptr;
}

BOOL IsWindowEnabled(HWND window)
{
    const Window* found = Desktop::Get().Find(window);
    return found != nullptr && !found->HasStyle(WS_DISABLED);
}

BOOL IsWindowVisible(HWND window)
{
    const Window* found = Desktop::Get().Find(window);
    return found != nullptr && IsWithin(found, WS_VISIBLE, true);
}
