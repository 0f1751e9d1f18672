// Keeps a window from drawing itself while many items change; on every way out it draws all of them at once. A list or
// tree that keeps up with every added item on the screen takes a hundred times as long.
#pragma once

#include <afxwin.h>

class ClytRedrawPause
{
public:
    // A hidden window is left alone: switching its drawing on again would show it.
    explicit ClytRedrawPause(const CWnd& itemWindow)
        : window(itemWindow), paused((itemWindow.GetStyle() & WS_VISIBLE) != 0)
    {
        if (paused)
            window.SetRedraw(FALSE);
    }
    ClytRedrawPause(const ClytRedrawPause&) = delete;
    ClytRedrawPause& operator=(const ClytRedrawPause&) = delete;
    ~ClytRedrawPause()
    {
        if (!paused)
            return;
        window.SetRedraw(TRUE);
        window.Invalidate();
    }

private:
    const CWnd& window; // outlives the pause
    bool paused;
};
