// Which object stands over which window.
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
    void SetPermanent(HWND window, CWnd* object) { m_permanent[window] = object; }
    void RemovePermanent(HWND window) { m_permanent.erase(window); }

    // Stand-ins for windows that no object joined: a handle in the clothes of a CWnd. Null for null.
    CWnd* FindOrMakeTemporary(HWND window);
    void RemoveTemporaries() { m_temporary.clear(); }

private:
    std::unordered_map<HWND, CWnd*> m_permanent;
    std::unordered_map<HWND, std::unique_ptr<CWnd>> m_temporary;
};
