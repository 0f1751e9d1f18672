// Which object belongs to which window.
#pragma once

#include "system/ModalWindows.h"
#include <afxwin.h>

#include <memory>
#include <unordered_map>

class CHandleMap
{
public:
    static CHandleMap& Get();

    // Objects that joined their window. The map does not own them.
    CWnd* LookupPermanent(HWND window) const;
    void SetPermanent(HWND window, CWnd* object) { m_permanent[window] = {object, nullptr}; }
    void RemoveHandle(HWND window) { m_permanent.erase(window); }
    // The object leaves; the procedure below ours is kept for the window's sake.
    void Leave(HWND window, WNDPROC below) noexcept;
    WNDPROC FindBelow(HWND window) const;

    // The object of a window; for one that none joined an object that only holds the handle, and lives until the last
    // modal run ends. Null for null.
    CWnd* FromHandle(HWND window);

private:
    CHandleMap();
    static void DeleteTemp(ModalWindows::End end) noexcept;

    struct Joined
    {
        CWnd* object;
        WNDPROC below; // null as long as the object is there, which knows it
    };

    std::unordered_map<HWND, Joined> m_permanent;
    std::unordered_map<HWND, std::unique_ptr<CWnd>> m_temporary;
};
