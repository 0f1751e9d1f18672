// The platform's functions that create and destroy windows, send them messages, say what they are and find them.
#include "CreationHook.h"
#include "Desktop.h"
#include "FaultPlan.h"

#include <algorithm>
#include <strings.h>
#include <utility>

using platform::Desktop;
using platform::Window;

namespace
{

constexpr DWORD thread = 1;

void TellDestruction(HWND window)
{
    SendMessageA(window, WM_DESTROY, 0, 0);
    if (const Window* dying = Desktop::Get().Find(window))
    {
        for (HWND child : dying->ChildHandles())
            TellDestruction(child);
    }
}

void Remove(HWND window)
{
    Desktop& desktop = Desktop::Get();
    const Window* dying = desktop.Find(window);
    if (dying == nullptr)
        return;
    for (HWND child : dying->ChildHandles())
        Remove(child);
    SendMessageA(window, WM_NCDESTROY, 0, 0);
    if (desktop.Find(window) != nullptr)
        desktop.Forget(window);
}

HWND HandleOf(const Window* window)
{
    return window != nullptr ? window->handle : nullptr;
}

} // namespace

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const platform::ProgramAtWork working;
    const Window* receiver = Desktop::Get().Find(window);
    return receiver != nullptr ? receiver->procedure(window, message, wParam, lParam) : 0;
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const platform::PlatformAtWork working;
    const std::shared_ptr<Window> object = Desktop::Get().Hold(window);
    return object != nullptr ? object->Window::Handle(message, wParam, lParam) : 0;
}

LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return procedure(window, message, wParam, lParam);
}

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU id, HINSTANCE instance, void* parameter)
{
    const bool isToFail = platform::IsToFail(platform::FaultKind::Window);
    const platform::PlatformAtWork working;
    if (isToFail || platform::IsCreationRefused({parameter, instance, id, parent, height, width, y, x,
                                                 static_cast<LONG>(style), text, className, exStyle}))
        return nullptr;
    Desktop& desktop = Desktop::Get();
    Window* above = desktop.Find(parent);
    std::unique_ptr<Window> made = className != nullptr ? platform::MakeWindow(className) : nullptr;
    if (made == nullptr || ((style & WS_CHILD) != 0 && above == nullptr))
        return nullptr;
    made->style = style;
    made->exStyle = exStyle;
    made->id = static_cast<int>(reinterpret_cast<INT_PTR>(id));
    made->text = text != nullptr ? text : "";
    made->MoveTo({x, y});
    Window& window = desktop.Adopt(std::move(made), above);
    window.Resize({width, height});
    window.OnCreated();
    return window.handle;
}

// A window that dies gives focus and activation away before its messages, as if it were hidden first.
BOOL DestroyWindow(HWND window)
{
    const platform::PlatformAtWork working;
    Desktop& desktop = Desktop::Get();
    const Window* dying = desktop.Find(window);
    if (dying == nullptr)
        return FALSE;
    for (HWND owned : desktop.OwnedBy(*dying))
        DestroyWindow(owned);
    if (desktop.active == window)
        SetActiveWindow(desktop.SuccessorOf(*dying));
    else if (dying->parent != nullptr && dying->IsFocused())
        SetFocus(dying->parent->handle);
    TellDestruction(window);
    Remove(window);
    return TRUE;
}

LONG_PTR GetWindowLongPtrA(HWND window, int index)
{
    const Window* found = Desktop::Get().Find(window);
    if (found == nullptr)
        return 0;
    switch (index)
    {
    case GWL_STYLE: return static_cast<LONG_PTR>(found->style);
    case GWL_EXSTYLE: return static_cast<LONG_PTR>(found->exStyle);
    case GWLP_WNDPROC: return reinterpret_cast<LONG_PTR>(found->procedure);
    default: return 0;
    }
}

LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value)
{
    Window* found = Desktop::Get().Find(window);
    if (found != nullptr && index == GWL_STYLE)
    {
        const DWORD before = std::exchange(found->style, static_cast<DWORD>(value));
        found->OnStyleChanged();
        return static_cast<LONG_PTR>(before);
    }
    if (found == nullptr || index != GWLP_WNDPROC)
        return 0;
    const auto previous = reinterpret_cast<LONG_PTR>(found->procedure);
    found->procedure = reinterpret_cast<WNDPROC>(value);
    return previous;
}

int GetClassNameA(HWND window, char* buffer, int size)
{
    const Window* found = Desktop::Get().Find(window);
    if (found == nullptr)
        return 0;
    return static_cast<int>(
        platform::CopyText(found->className, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(buffer)));
}

int GetDlgCtrlID(HWND window)
{
    const Window* found = Desktop::Get().Find(window);
    return found != nullptr ? found->id : 0;
}

HWND GetDlgItem(HWND dialog, int id)
{
    const Window* found = Desktop::Get().Find(dialog);
    if (found == nullptr)
        return nullptr;
    // The bound is the first of that id; any other search may give a later one.
    const auto child = found->childrenById.lower_bound(id);
    return child != found->childrenById.end() && child->first == id ? child->second->handle : nullptr;
}

HWND FindWindowExA(HWND parent, HWND /*after*/, LPCSTR className, LPCSTR /*text*/)
{
    const Window* found = Desktop::Get().Find(parent);
    if (found == nullptr)
        return nullptr;
    const auto child = std::ranges::find_if(found->children, [&](const Window* each)
                                            { return lstrcmpiA(each->className, className) == 0; });
    return child != found->children.end() ? (*child)->handle : nullptr;
}

HWND GetParent(HWND window)
{
    const Window* found = Desktop::Get().Find(window);
    if (found == nullptr)
        return nullptr;
    return HandleOf(found->parent != nullptr ? found->parent : found->owner);
}

HWND GetWindow(HWND window, UINT relation)
{
    const Window* found = Desktop::Get().Find(window);
    if (found == nullptr)
        return nullptr;
    if (relation == GW_OWNER)
        return HandleOf(found->owner);
    if (relation == GW_CHILD)
        return found->children.empty() ? nullptr : found->children.front()->handle;
    if (relation != GW_HWNDNEXT || found->parent == nullptr)
        return nullptr;
    const auto next = std::next(found->inRow);
    return next != found->parent->children.end() ? (*next)->handle : nullptr;
}

DWORD GetCurrentThreadId()
{
    return thread;
}

BOOL EnumThreadWindows(DWORD /*thread*/, WNDENUMPROC procedure, LPARAM parameter)
{
    const std::vector<HWND> windows = Desktop::Get().TopLevels();
    return std::ranges::all_of(windows, [&](HWND window) { return procedure(window, parameter) != FALSE; });
}

BOOL IsChild(HWND parent, HWND window)
{
    const Window* inner = Desktop::Get().Find(window);
    while (inner != nullptr && HandleOf(inner->parent) != parent)
        inner = inner->parent;
    return parent != nullptr && inner != nullptr ? TRUE : FALSE;
}

int lstrcmpiA(LPCSTR left, LPCSTR right)
{
    return strcasecmp(left, right);
}
