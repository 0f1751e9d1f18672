// A window in memory: what it is, and the procedure of its class.
//
// Windows belong to the desktop (Desktop.h); pointers between them are cleared when a window dies, and code that keeps a
// window across a message keeps its handle, which is never given out again.
#pragma once

#include <windows.h>

#include <list>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace platform
{

class Window;

// Children in order of creation. One finds its neighbours, and leaves, without a walk over the others.
using WindowRow = std::list<Window*>;

class Window
{
public:
    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window() = default;

    // The procedure that a window of the class has until someone replaces it.
    virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    // Called once, when the window is in the tree.
    virtual void OnCreated() {}
    // Called when a program has replaced the style.
    virtual void OnStyleChanged() {}
    // The size that a window of the class takes when it is given one.
    virtual SIZE Adjusted(SIZE wanted) const { return wanted; }

    // Programs may ask for any numbers. The window takes only such that sums of a few of them do not overflow.
    void MoveTo(POINT corner);
    void Resize(SIZE wanted);

    bool HasStyle(DWORD flag) const { return (style & flag) != 0; }
    // Visible and enabled itself; its parents do not matter.
    bool IsReady() const { return HasStyle(WS_VISIBLE) && !HasStyle(WS_DISABLED); }
    bool IsFocused() const;
    SIZE Size() const { return {place.right - place.left, place.bottom - place.top}; }
    // What the frame takes of the window's size, or of another that it is given.
    SIZE Frame() const { return FrameOf(Size()); }
    SIZE FrameOf(SIZE whole) const;
    virtual SIZE ClientSize() const;
    // The window's place on the screen.
    RECT ScreenPlace() const;
    // Where the client area begins on the screen.
    POINT ClientOrigin() const;
    // The children in order of creation, as handles: what is sent to one may destroy another.
    std::vector<HWND> ChildHandles() const;
    // Of a child: the other children of its group, from the one after it around to the one before it.
    std::vector<Window*> OthersOfGroup() const;
    // The top-level window that this one is in.
    Window& Root();

    HWND handle = nullptr;
    const char* className = "";
    DWORD style = 0;
    DWORD exStyle = 0;
    int id = 0;
    Window* parent = nullptr; // of a child
    Window* owner = nullptr;  // of a top-level window
    WindowRow children;
    std::multimap<int, Window*> childrenById; // children with one id in order of creation
    WindowRow::iterator inRow;                // of a child: its place in both of the parent
    std::multimap<int, Window*>::iterator inIds;
    std::string text;
    RECT place{}; // in the parent's client area, else on the screen
    WNDPROC procedure = nullptr;
    HGDIOBJ font = nullptr;

protected:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageA(handle, message, wParam, lParam);
    }
    // Sends the parent a command with a notification code.
    LRESULT Notify(UINT code) const;
};

// Copies a text as WM_GETTEXT does.
LRESULT CopyText(const std::string& text, WPARAM size, LPARAM buffer);

// A window of the named class; null for an unknown one.
std::unique_ptr<Window> MakeWindow(const char* className);

} // namespace platform
