// Message maps. A class that handles messages writes
//
//     DECLARE_MESSAGE_MAP()                        in its declaration, and
//     BEGIN_MESSAGE_MAP(CChild, CParent)           beside its functions
//         ON_WM_SIZE()
//         ON_NOTIFY(NM_DBLCLK, 1000, OnDoubleClick)
//     END_MESSAGE_MAP()
//
// A message goes to the first entry that fits, the class itself before its base. Entries call handlers that may be
// protected, with the message's parameters cracked.
#pragma once

#include <windows.h>

class CWnd;

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;
    UINT nCode;                                           // of the notification
    UINT nID;                                             // of the control that sends it
    LRESULT (*pfnCall)(CWnd& window, const MSG& message); // null ends the entries
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)(); // null in the last class
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define afx_msg

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

// The formatter would treat the brace that stays open as a mistake.
// clang-format off
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                                    \
    {                                                                                                                  \
        using ThisClass = theClass;                                                                                    \
        using TheBaseClass = baseClass;                                                                                \
        static constexpr AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
            {0, 0, 0, nullptr}};                                                                                       \
        static constexpr AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                                 \
        return &map;                                                                                                   \
    }
// clang-format on

// An entry whose handler gives no result; `call` is what it runs, with `self` and `m` the message, which not every call
// looks at.
#define AFX_ENTRY(message, code, id, call)                                                                             \
    {(message), static_cast<UINT>(code), (id),                                                                         \
     [](CWnd& w, [[maybe_unused]] const MSG& m) -> LRESULT                                                             \
     {                                                                                                                 \
         auto& self = static_cast<ThisClass&>(w);                                                                      \
         call;                                                                                                         \
         return 0;                                                                                                     \
     }},

#define ON_WM_DESTROY() AFX_ENTRY(WM_DESTROY, 0, 0, self.OnDestroy())
#define ON_WM_SIZE()                                                                                                   \
    AFX_ENTRY(WM_SIZE, 0, 0, self.OnSize(static_cast<UINT>(m.wParam), LOWORD(m.lParam), HIWORD(m.lParam)))
#define ON_WM_LBUTTONDOWN()                                                                                            \
    AFX_ENTRY(WM_LBUTTONDOWN, 0, 0, self.OnLButtonDown(static_cast<UINT>(m.wParam), CPoint(m.lParam)))
#define ON_WM_LBUTTONDBLCLK()                                                                                          \
    AFX_ENTRY(WM_LBUTTONDBLCLK, 0, 0, self.OnLButtonDblClk(static_cast<UINT>(m.wParam), CPoint(m.lParam)))
#define ON_WM_KEYDOWN()                                                                                                \
    AFX_ENTRY(WM_KEYDOWN, 0, 0, self.OnKeyDown(static_cast<UINT>(m.wParam), LOWORD(m.lParam), HIWORD(m.lParam)))

// LRESULT handler(WPARAM, LPARAM)
#define ON_MESSAGE(message, handler)                                                                                   \
    {(message), 0, 0,                                                                                                  \
     [](CWnd& w, const MSG& m) -> LRESULT { return static_cast<ThisClass&>(w).handler(m.wParam, m.lParam); }},
// void handler(), on the click of a button or a menu's choice
#define ON_COMMAND(id, handler) AFX_ENTRY(WM_COMMAND, 0, id, self.handler())
// void handler(NMHDR*, LRESULT*), on a control's WM_NOTIFY
#define ON_NOTIFY(code, id, handler)                                                                                   \
    {WM_NOTIFY, static_cast<UINT>(code), (id),                                                                         \
     [](CWnd& w, const MSG& m) -> LRESULT                                                                              \
     {                                                                                                                 \
         LRESULT result = 0;                                                                                           \
         static_cast<ThisClass&>(w).handler(reinterpret_cast<NMHDR*>(m.lParam), &result);                              \
         return result;                                                                                                \
     }},
