// Which object belongs to which window.
#pragma once

#include <afxwin.h>

#include <memory>
#include <unordered_map>

class WindowMap
{
public:
    static WindowMap& Get();

    // Objects that joined their window. The map does not own them.
    CWnd* FindPermanent(HWND window) const;
    void SetPermanent(HWND window, CWnd* object) { m_permanent[window] = {object, nullptr}; }
    void RemovePermanent(HWND window) { m_permanent.erase(window); }
    void RemoveAllPermanent() { m_permanent.clear(); }
    // The object leaves; the procedure that stands below ours is kept for the window's sake.
    void Leave(HWND window, WNDPROC below) noexcept;
    WNDPROC FindBelow(HWND window) const;

    // An object that only holds the handle, for a window that none joined. Null for null.
    CWnd* FindOrMakeTemporary(HWND window);
    void RemoveTemporaries() { m_temporary.clear(); }

private:
    struct Joined
    {
        CWnd* object;
        WNDPROC below; // null as long as the object is there, which knows it
    };

    std::unordered_map<HWND, Joined> m_permanent;
    std::unordered_map<HWND, std::unique_ptr<CWnd>> m_temporary;
};
