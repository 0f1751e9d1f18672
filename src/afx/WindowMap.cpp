#include "WindowMap.h"

WindowMap& WindowMap::Get()
{
    static WindowMap map;
    return map;
}

CWnd* WindowMap::FindPermanent(HWND window) const
{
    const auto entry = m_permanent.find(window);
    return entry != m_permanent.end() ? entry->second.object : nullptr;
}

void WindowMap::Leave(HWND window, WNDPROC below) noexcept
{
    const auto entry = m_permanent.find(window);
    if (entry != m_permanent.end())
        entry->second = {nullptr, below};
}

WNDPROC WindowMap::FindBelow(HWND window) const
{
    const auto entry = m_permanent.find(window);
    return entry != m_permanent.end() ? entry->second.below : nullptr;
}

CWnd* WindowMap::FindOrMakeTemporary(HWND window)
{
    if (window == nullptr)
        return nullptr;
    if (CWnd* permanent = FindPermanent(window))
        return permanent;
    std::unique_ptr<CWnd>& temporary = m_temporary[window];
    if (temporary == nullptr)
    {
        temporary = std::make_unique<CWnd>();
        temporary->m_hWnd = window;
    }
    return temporary.get();
}
