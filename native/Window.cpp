#include "Window.h"

#include "ButtonWindow.h"
#include "ComboBoxWindow.h"
#include "Desktop.h"
#include "DialogWindow.h"
#include "EditWindow.h"
#include "ListBoxWindow.h"
#include "Metrics.h"
#include "StaticWindow.h"
#include "TreeWindow.h"

#include <algorithm>
#include <cstring>
#include <strings.h>

namespace platform
{

namespace
{

constexpr LONG farthest = 1 << 29;

template <class WINDOW>
std::unique_ptr<Window> Make()
{
    return std::make_unique<WINDOW>();
}

} // namespace

LRESULT Window::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SETTEXT: text = lParam != 0 ? reinterpret_cast<const char*>(lParam) : ""; return TRUE;
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(text.size());
    case WM_GETTEXT: return CopyText(text, wParam, lParam);
    case WM_SETFONT: font = reinterpret_cast<HGDIOBJ>(wParam); return 0;
    case WM_GETFONT: return reinterpret_cast<LRESULT>(font);
    case WM_SETREDRAW: style = wParam != 0 ? style | WS_VISIBLE : style & ~DWORD{WS_VISIBLE}; return 0;
    case WM_CLOSE: ::DestroyWindow(handle); return 0;
    case WM_CANCELMODE:
        if (::GetCapture() == handle)
            ::ReleaseCapture();
        return 0;
    default: return 0;
    }
}

bool Window::IsFocused() const
{
    return ::GetFocus() == handle;
}

void Window::MoveTo(POINT corner)
{
    const LONG x = std::clamp(corner.x, -farthest, farthest);
    const LONG y = std::clamp(corner.y, -farthest, farthest);
    place = {x, y, x + place.right - place.left, y + place.bottom - place.top};
}

void Window::Resize(SIZE wanted)
{
    const SIZE size = Adjusted({std::clamp<LONG>(wanted.cx, 0, farthest), std::clamp<LONG>(wanted.cy, 0, farthest)});
    place.right = place.left + size.cx;
    place.bottom = place.top + size.cy;
}

// Where an edge would leave nothing, there is none.
SIZE Window::FrameOf(SIZE whole) const
{
    constexpr LONG edge = 4;
    const LONG border = HasStyle(WS_BORDER) ? 2 : 0;
    const bool hasEdge = (exStyle & WS_EX_CLIENTEDGE) != 0 && whole.cx - border > edge && whole.cy - border > edge;
    if (!HasStyle(WS_DLGFRAME))
        return hasEdge ? SIZE{border + edge, border + edge} : SIZE{border, border};
    const Metrics& metrics = CurrentMetrics();
    const LONG frame = HasStyle(WS_THICKFRAME) ? metrics.sizingFrame : metrics.fixedFrame;
    return {frame, frame + metrics.captionHeight};
}

SIZE Window::ClientSize() const
{
    const SIZE size = Size();
    const SIZE frame = Frame();
    return {std::max<LONG>(0, size.cx - frame.cx), std::max<LONG>(0, size.cy - frame.cy)};
}

RECT Window::ScreenPlace() const
{
    if (parent == nullptr)
        return place;
    const POINT origin = parent->ClientOrigin();
    return {place.left + origin.x, place.top + origin.y, place.right + origin.x, place.bottom + origin.y};
}

// The frame is equally wide on three sides; what it takes of the height beyond that is the caption.
POINT Window::ClientOrigin() const
{
    const RECT screen = ScreenPlace();
    const SIZE frame = Frame();
    const LONG border = frame.cx / 2;
    return {screen.left + border, screen.top + frame.cy - border};
}

std::vector<HWND> Window::ChildHandles() const
{
    std::vector<HWND> handles;
    handles.reserve(children.size());
    for (const Window* child : children)
        handles.push_back(child->handle);
    return handles;
}

// A group ends before the next child that begins one. The children form a circle: those before the first that begins
// a group belong to the last.
std::vector<Window*> Window::OthersOfGroup() const
{
    const WindowRow& row = parent->children;
    const auto self = WindowRow::const_iterator(inRow);
    const auto begins = [](const Window& child) { return child.HasStyle(WS_GROUP); };
    const auto after = [&](WindowRow::const_iterator member) { return ++member != row.end() ? member : row.begin(); };
    std::vector<Window*> others;
    auto next = after(self);
    for (; next != self && !begins(**next); next = after(next))
        others.push_back(*next);
    if (next == self || begins(*this))
        return others;
    std::vector<Window*> before; // from this one back to the one that begins the group
    auto previous = self;
    do
    {
        previous = std::prev(previous != row.begin() ? previous : row.end());
        before.push_back(*previous);
    } while (!begins(**previous));
    others.insert(others.end(), before.rbegin(), before.rend());
    return others;
}

Window& Window::Root()
{
    Window* root = this;
    while (root->parent != nullptr)
        root = root->parent;
    return *root;
}

LRESULT Window::Notify(UINT code) const
{
    if (parent == nullptr)
        return 0;
    return SendMessageA(parent->handle, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(handle));
}

LRESULT CopyText(const std::string& text, WPARAM size, LPARAM buffer)
{
    if (size == 0)
        return 0;
    const size_t length = std::min<size_t>(text.size(), size - 1);
    char* target = reinterpret_cast<char*>(buffer);
    std::memcpy(target, text.data(), length);
    target[length] = '\0';
    return static_cast<LRESULT>(length);
}

std::unique_ptr<Window> MakeWindow(const char* className)
{
    static constexpr struct
    {
        const char* name;
        std::unique_ptr<Window> (*make)();
    } classes[] = {
        {"#32770", Make<DialogWindow>},      {"Button", Make<ButtonWindow>},   {"ComboBox", Make<ComboBoxWindow>},
        {"Edit", Make<EditWindow>},          {"ListBox", Make<ListBoxWindow>}, {"Static", Make<StaticWindow>},
        {"SysTreeView32", Make<TreeWindow>},
    };
    for (const auto& known : classes)
    {
        if (strcasecmp(known.name, className) != 0)
            continue;
        auto window = known.make();
        window->className = known.name;
        return window;
    }
    return nullptr;
}

} // namespace platform
