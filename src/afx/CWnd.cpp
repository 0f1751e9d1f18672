#include <afxwin.h>

#include "system/CurrentMessage.h"
#include <winhand_.h>

#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

namespace
{

// The window stays without its object: our procedure stays in the chain of procedures and hands everything to the one below.
LRESULT PassBelow(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    const WNDPROC below = CHandleMap::Get().FindBelow(window);
    if (below == nullptr)
        return ::DefWindowProcA(window, message, wParam, lParam);
    const LRESULT result = ::CallWindowProcA(below, window, message, wParam, lParam);
    if (message == WM_NCDESTROY)
        CHandleMap::Get().RemoveHandle(window);
    return result;
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object == nullptr)
        return PassBelow(window, message, wParam, lParam);
    return AfxCallWndProc(*object, message, wParam, lParam);
}

// A window that was created and that no object has joined yet.
struct WindowDestroyer
{
    void operator()(HWND window) const { ::DestroyWindow(window); }
};
using CreatedWindow = std::unique_ptr<std::remove_pointer_t<HWND>, WindowDestroyer>;

} // namespace

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, nullptr}};
    static constexpr AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

CWnd::~CWnd()
{
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this)
        ::DestroyWindow(UnsubclassWindow());
}

BOOL CWnd::Create(const char* className, const char* windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, const char* className, const char* windowName, DWORD style, const RECT& rect,
                    CWnd* parent, UINT id)
{
    CREATESTRUCTA create{};
    create.dwExStyle = exStyle;
    create.lpszClass = className;
    create.lpszName = windowName;
    create.style = static_cast<LONG>(style);
    create.x = rect.left;
    create.y = rect.top;
    create.cx = rect.right - rect.left;
    create.cy = rect.bottom - rect.top;
    create.hwndParent = parent != nullptr ? parent->m_hWnd : nullptr;
    create.hMenu = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id));
    create.hInstance = AfxGetInstanceHandle();
    if (!PreCreateWindow(create))
        return FALSE;
    CreatedWindow window(::CreateWindowExA(create.dwExStyle, create.lpszClass, create.lpszName,
                                           static_cast<DWORD>(create.style), create.x, create.y, create.cx, create.cy,
                                           create.hwndParent, create.hMenu, create.hInstance, create.lpCreateParams));
    if (!SubclassWindow(window.get()))
        return FALSE;
    static_cast<void>(window.release());
    return TRUE;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTA& /*create*/)
{
    return TRUE;
}

BOOL CWnd::DestroyWindow()
{
    return m_hWnd != nullptr && ::DestroyWindow(m_hWnd);
}

BOOL CWnd::SubclassWindow(HWND window)
{
    CHandleMap& map = CHandleMap::Get();
    if (window == nullptr || m_hWnd != nullptr || map.LookupPermanent(window) != nullptr)
        return FALSE;
    const WNDPROC below = map.FindBelow(window);
    map.SetPermanent(window, this);
    m_hWnd = window;
    // If an object left while another's procedure was on top, ours is still in the chain and must not enter it twice.
    m_pfnSuper = below != nullptr ? below
                                  : reinterpret_cast<WNDPROC>(::SetWindowLongPtrA(
                                        window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WindowProcedure)));
    return TRUE;
}

HWND CWnd::UnsubclassWindow()
{
    const HWND window = std::exchange(m_hWnd, nullptr);
    const WNDPROC super = std::exchange(m_pfnSuper, nullptr);
    if (window == nullptr)
        return nullptr;
    if (::GetWindowLongPtrA(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(WindowProcedure))
    {
        CHandleMap::Get().RemoveHandle(window);
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super));
    }
    else
    {
        // Somebody joined the window after us. To put back what we found would take them out of the chain.
        CHandleMap::Get().Leave(window, super);
    }
    return window;
}

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    return CHandleMap::Get().LookupPermanent(window);
}

CWnd* CWnd::FromHandle(HWND window)
{
    return CHandleMap::Get().FromHandle(window);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_pfnSuper != nullptr)
        return ::CallWindowProcA(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& message = CurrentMessage::Get();
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_COMMAND: *result = OnCommand(wParam, lParam); return *result != 0;
    case WM_NOTIFY: return lParam != 0 && OnNotify(wParam, lParam, result);
    case WM_DRAWITEM:
    {
        const auto* draw = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        CWnd* child = draw != nullptr ? FromHandlePermanent(draw->hwndItem) : nullptr;
        return child != nullptr && child->OnChildNotify(message, wParam, lParam, result);
    }
    case WM_NCDESTROY: OnNcDestroy(); return TRUE;
    default: return Dispatch(message, 0, 0, result);
    }
}

BOOL CWnd::Dispatch(UINT message, UINT code, UINT id, LRESULT* result)
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnCall != nullptr; ++entry)
        {
            if (entry->nMessage != message || entry->nCode != code || entry->nID != id)
                continue;
            *result = entry->pfnCall(*this, CurrentMessage::Get());
            return TRUE;
        }
    }
    return FALSE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    // A menu or an accelerator has its own meaning for the code; both mean the plain command.
    const UINT code = lParam != 0 ? HIWORD(wParam) : 0;
    LRESULT result = 0;
    return Dispatch(WM_COMMAND, code, LOWORD(wParam), &result);
}

BOOL CWnd::OnNotify(WPARAM /*wParam*/, LPARAM lParam, LRESULT* result)
{
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    return Dispatch(WM_NOTIFY, header->code, static_cast<UINT>(header->idFrom), result);
}

BOOL CWnd::OnChildNotify(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, LRESULT* /*result*/)
{
    return FALSE;
}

void CWnd::OnNcDestroy()
{
    const HWND window = std::exchange(m_hWnd, nullptr);
    const WNDPROC super = std::exchange(m_pfnSuper, nullptr);
    // The window is about to go: to put the procedure below back in would be a call of the platform for nothing.
    CHandleMap::Get().Leave(window, super);
    const MSG& message = CurrentMessage::Get();
    ::CallWindowProcA(super, window, WM_NCDESTROY, message.wParam, message.lParam);
    CHandleMap::Get().RemoveHandle(window);
    PostNcDestroy();
}

void CWnd::GetWindowText(CString& text) const
{
    // Most texts are short: only one that may have been cut is worth a second message that asks for its length.
    char usual[256];
    const int copied = ::GetWindowTextA(m_hWnd, usual, sizeof usual);
    text.Empty();
    if (copied < static_cast<int>(sizeof usual) - 1)
    {
        text.Append(usual, copied);
        return;
    }
    const int length = ::GetWindowTextLengthA(m_hWnd);
    text.ReleaseBuffer(::GetWindowTextA(m_hWnd, text.GetBuffer(length), length + 1));
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add) const
{
    const DWORD style = GetStyle();
    const DWORD modified = (style & ~remove) | add;
    if (modified == style)
        return FALSE;
    ::SetWindowLongPtrA(m_hWnd, GWL_STYLE, static_cast<LONG_PTR>(modified));
    return TRUE;
}

CWnd* CWnd::SetFocus() const
{
    return m_hWnd != nullptr ? FromHandle(::SetFocus(m_hWnd)) : nullptr;
}

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags) const
{
    return ::SetWindowPos(m_hWnd, insertAfter != nullptr ? insertAfter->m_hWnd : nullptr, x, y, width, height, flags);
}

void CWnd::CenterWindow() const
{
    HWND center = ::GetWindow(m_hWnd, GW_OWNER);
    if (center != nullptr && (!::IsWindowVisible(center) || ::IsIconic(center)))
        center = nullptr;

    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoA(::MonitorFromWindow(center != nullptr ? center : m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& area = monitor.rcWork;
    RECT around = area;
    if (center != nullptr)
        ::GetWindowRect(center, &around);

    CRect own;
    GetWindowRect(&own);
    const LONG x = (around.left + around.right) / 2 - own.Width() / 2;
    const LONG y = (around.top + around.bottom) / 2 - own.Height() / 2;
    SetWindowPos(nullptr, std::max(std::min<LONG>(x, area.right - own.Width()), area.left),
                 std::max(std::min<LONG>(y, area.bottom - own.Height()), area.top), -1, -1,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
