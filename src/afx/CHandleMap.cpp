#include <winhand_.h>

CHandleMap& CHandleMap::Get()
{
    static CHandleMap map;
    return map;
}

CHandleMap::CHandleMap()
{
    ModalWindows::atEnd = DeleteTemp;
}

void CHandleMap::DeleteTemp(ModalWindows::End end) noexcept
{
    Get().m_temporary.clear();
    if (end == ModalWindows::End::ThreadDied)
        Get().m_permanent.clear();
}

CWnd* CHandleMap::LookupPermanent(HWND window) const
{
    const auto entry = m_permanent.find(window);
    return entry != m_permanent.end() ? entry->second.object : nullptr;
}

void CHandleMap::Leave(HWND window, WNDPROC below) noexcept
{
    const auto entry = m_permanent.find(window);
    if (entry != m_permanent.end())
        entry->second = {nullptr, below};
}

WNDPROC CHandleMap::FindBelow(HWND window) const
{
    const auto entry = m_permanent.find(window);
    return entry != m_permanent.end() ? entry->second.below : nullptr;
}

CWnd* CHandleMap::FromHandle(HWND window)
{
    if (window == nullptr)
        return nullptr;
    if (CWnd* permanent = LookupPermanent(window))
        return permanent;
    std::unique_ptr<CWnd>& temporary = m_temporary[window];
    if (temporary == nullptr)
    {
        temporary = std::make_unique<CWnd>();
        temporary->m_hWnd = window;
    }
    return temporary.get();
}
