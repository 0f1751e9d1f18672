// The platform's types, constants and functions for the native build: only those that our sources, their tests and tools
// name. What the functions do to windows held in memory is in the sources beside this header; functions that only
// draw do nothing.
#pragma once

#include <cerrno>
#include <cstdint>
#include <ctime>

#define CALLBACK
#define WINAPI

using BOOL = int;
using UINT = unsigned int;
using BYTE = unsigned char;
using WORD = unsigned short;
using DWORD = unsigned int;
using LONG = int;
using COLORREF = DWORD;
using ULONGLONG = uint64_t;
using LPCSTR = const char*;
using LPCWSTR = const wchar_t*;
using INT_PTR = intptr_t;
using UINT_PTR = uintptr_t;
using LONG_PTR = intptr_t;
using ULONG_PTR = uintptr_t;
using DWORD_PTR = uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using HANDLE = void*;
using HGDIOBJ = void*;
using HWND = struct HWND__*;
using HINSTANCE = struct HINSTANCE__*;
using HMENU = struct HMENU__*;
using HICON = struct HICON__*;
using HDC = struct HDC__*;
using HBRUSH = struct HBRUSH__*;
using HMONITOR = struct HMONITOR__*;
using HMODULE = HINSTANCE;
using HCURSOR = HICON;
using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using DLGPROC = INT_PTR (*)(HWND, UINT, WPARAM, LPARAM);
using WNDENUMPROC = BOOL (*)(HWND, LPARAM);
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);
using FARPROC = INT_PTR (*)();
using HHOOK = struct HHOOK__*;
using HOOKPROC = LRESULT (*)(int, WPARAM, LPARAM);

struct POINT
{
    LONG x, y;
};

struct SIZE
{
    LONG cx, cy;
};

struct RECT
{
    LONG left, top, right, bottom;
};

struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

struct CREATESTRUCTA
{
    void* lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy, cx, y, x;
    LONG style;
    LPCSTR lpszName, lpszClass;
    DWORD dwExStyle;
};

struct CBT_CREATEWNDA
{
    CREATESTRUCTA* lpcs;
    HWND hwndInsertAfter;
};

struct DRAWITEMSTRUCT
{
    UINT CtlType, CtlID, itemID, itemAction, itemState;
    HWND hwndItem;
    HDC hDC;
    RECT rcItem;
    ULONG_PTR itemData;
};

struct NMHDR
{
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};

struct MONITORINFO
{
    DWORD cbSize;
    RECT rcMonitor, rcWork;
    DWORD dwFlags;
};

struct TEXTMETRICA
{
    LONG tmHeight;
};

struct ACTIVATION_CONTEXT_BASIC_INFORMATION
{
    HANDLE hActCtx;
    DWORD dwFlags;
};

struct KEYBDINPUT
{
    WORD wVk, wScan;
    DWORD dwFlags, time;
    ULONG_PTR dwExtraInfo;
};

struct INPUT
{
    DWORD type;
    KEYBDINPUT ki;
};

struct CRITICAL_SECTION
{
};

#define MAX_PATH 260
#define FALSE 0
#define TRUE 1
#define LOWORD(l) (static_cast<WORD>(static_cast<DWORD_PTR>(l) & 0xffffU))
#define HIWORD(l) (static_cast<WORD>((static_cast<DWORD_PTR>(l) >> 16U) & 0xffffU))
#define MAKEWPARAM(l, h)                                                                                               \
    (static_cast<WPARAM>(static_cast<DWORD>(static_cast<WORD>(l)) | static_cast<DWORD>(static_cast<WORD>(h)) << 16U))
#define MAKELPARAM(l, h) (static_cast<LPARAM>(MAKEWPARAM(l, h)))
#define MAKEINTRESOURCEA(i) (reinterpret_cast<LPCSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(i))))
#define MAKEINTRESOURCEW(i) (reinterpret_cast<LPCWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(i))))
#define IDC_ARROW MAKEINTRESOURCEA(32512)
#define IDC_WAIT MAKEINTRESOURCEA(32514)
#define IDC_CROSS MAKEINTRESOURCEA(32515)
#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))

enum : UINT
{
    IDOK = 1,
    IDCANCEL = 2,
    MB_ICONERROR = 0x10,
    SEM_FAILCRITICALERRORS = 1,
    ERROR_MOD_NOT_FOUND = 126,
    SYNCHRONIZE = 0x100000,
    WAIT_OBJECT_0 = 0,
    WAIT_TIMEOUT = 258,
    GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT = 2,
    GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS = 4,
    CP_ACP = 0,
    CP_UTF8 = 65001,
    QUERY_ACTCTX_FLAG_ACTCTX_IS_ADDRESS = 0x10,
    QUERY_ACTCTX_FLAG_NO_ADDREF = 0x80000000,
    ActivationContextBasicInformation = 1,

    WM_NULL = 0,
    WM_DESTROY = 2,
    WM_SIZE = 5,
    WM_ACTIVATE = 6,
    WM_SETFOCUS = 7,
    WM_KILLFOCUS = 8,
    WM_ENABLE = 0xA,
    WM_SETREDRAW = 0xB,
    WM_SETTEXT = 0xC,
    WM_GETTEXT = 0xD,
    WM_GETTEXTLENGTH = 0xE,
    WM_PAINT = 0xF,
    WM_CLOSE = 0x10,
    WM_QUIT = 0x12,
    WM_SHOWWINDOW = 0x18,
    WM_CANCELMODE = 0x1F,
    WM_NEXTDLGCTL = 0x28,
    WM_DRAWITEM = 0x2B,
    WM_SETFONT = 0x30,
    WM_GETFONT = 0x31,
    WM_NOTIFY = 0x4E,
    WM_NCDESTROY = 0x82,
    WM_GETDLGCODE = 0x87,
    WM_KEYDOWN = 0x100,
    WM_KEYUP = 0x101,
    WM_CHAR = 0x102,
    WM_SYSKEYDOWN = 0x104,
    WM_SYSKEYUP = 0x105,
    WM_SYSCHAR = 0x106,
    WM_INITDIALOG = 0x110,
    WM_COMMAND = 0x111,
    WM_TIMER = 0x113,
    WM_LBUTTONDOWN = 0x201,
    WM_LBUTTONUP = 0x202,
    WM_LBUTTONDBLCLK = 0x203,
    WM_CAPTURECHANGED = 0x215,
    WM_CLEAR = 0x303,
    WM_USER = 0x400,
    WM_APP = 0x8000,
    DM_GETDEFID = WM_USER,
    DM_SETDEFID = WM_USER + 1,
    DC_HASDEFID = 0x534B,

    PM_REMOVE = 1,
    SIZE_RESTORED = 0,
    WA_INACTIVE = 0,
    WA_ACTIVE = 1,

    VK_BACK = 8,
    VK_TAB = 9,
    VK_RETURN = 13,
    VK_SHIFT = 16,
    VK_CONTROL = 17,
    VK_MENU = 18,
    VK_ESCAPE = 27,
    VK_SPACE = 32,
    VK_PRIOR = 33,
    VK_NEXT = 34,
    VK_END = 35,
    VK_HOME = 36,
    VK_LEFT = 37,
    VK_UP = 38,
    VK_RIGHT = 39,
    VK_DOWN = 40,
    VK_DELETE = 46,
    VK_F4 = 115,
    MK_LBUTTON = 1,
    MAPVK_VK_TO_VSC = 0,
    INPUT_KEYBOARD = 1,
    KEYEVENTF_KEYUP = 2,

    DLGC_WANTARROWS = 1,
    DLGC_WANTALLKEYS = 4,
    DLGC_HASSETSEL = 8,
    DLGC_DEFPUSHBUTTON = 0x10,
    DLGC_UNDEFPUSHBUTTON = 0x20,
    DLGC_RADIOBUTTON = 0x40,
    DLGC_WANTCHARS = 0x80,
    DLGC_STATIC = 0x100,
    DLGC_BUTTON = 0x2000,

    WS_TABSTOP = 0x10000,
    WS_GROUP = 0x20000,
    WS_THICKFRAME = 0x40000,
    WS_SYSMENU = 0x80000,
    WS_HSCROLL = 0x100000,
    WS_VSCROLL = 0x200000,
    WS_DLGFRAME = 0x400000,
    WS_BORDER = 0x800000,
    WS_CAPTION = 0xC00000,
    WS_DISABLED = 0x08000000,
    WS_VISIBLE = 0x10000000,
    WS_CHILD = 0x40000000,
    WS_POPUP = 0x80000000,
    WS_OVERLAPPEDWINDOW = 0xCF0000,
    WS_EX_CLIENTEDGE = 0x200,
    DS_SETFONT = 0x40,
    DS_MODALFRAME = 0x80,

    BS_PUSHBUTTON = 0,
    BS_DEFPUSHBUTTON = 1,
    BS_CHECKBOX = 2,
    BS_AUTOCHECKBOX = 3,
    BS_RADIOBUTTON = 4,
    BS_GROUPBOX = 7,
    BS_AUTORADIOBUTTON = 9,
    BS_TYPEMASK = 0xF,
    BN_CLICKED = 0,
    BM_GETCHECK = 0xF0,
    BM_SETCHECK = 0xF1,
    BM_GETSTATE = 0xF2,
    BM_SETSTATE = 0xF3,
    BM_SETSTYLE = 0xF4,
    BM_CLICK = 0xF5,
    BST_UNCHECKED = 0,
    BST_CHECKED = 1,
    BST_PUSHED = 4,
    SS_LEFT = 0,

    ES_LEFT = 0,
    ES_AUTOHSCROLL = 0x80,
    EM_GETSEL = 0xB0,
    EM_SETSEL = 0xB1,
    EM_SCROLLCARET = 0xB7,
    EM_REPLACESEL = 0xC2,
    EN_SETFOCUS = 0x100,
    EN_KILLFOCUS = 0x200,
    EN_CHANGE = 0x300,
    EN_UPDATE = 0x400,

    LBS_NOTIFY = 1,
    LBS_SORT = 2,
    LBS_OWNERDRAWFIXED = 0x10,
    LBS_HASSTRINGS = 0x40,
    LBS_STANDARD = 0xA00003,
    LB_ADDSTRING = 0x180,
    LB_INSERTSTRING = 0x181,
    LB_DELETESTRING = 0x182,
    LB_RESETCONTENT = 0x184,
    LB_SETCURSEL = 0x186,
    LB_GETCURSEL = 0x188,
    LB_GETTEXT = 0x189,
    LB_GETTEXTLEN = 0x18A,
    LB_GETCOUNT = 0x18B,
    LB_GETTOPINDEX = 0x18E,
    LB_SETTOPINDEX = 0x197,
    LB_GETITEMRECT = 0x198,
    LB_GETITEMDATA = 0x199,
    LB_SETITEMDATA = 0x19A,
    LB_GETCARETINDEX = 0x19F,
    LB_SETITEMHEIGHT = 0x1A0,
    LB_GETITEMHEIGHT = 0x1A1,
    LBN_SELCHANGE = 1,
    LBN_DBLCLK = 2,
    LBN_SETFOCUS = 4,
    LBN_KILLFOCUS = 5,

    CBS_DROPDOWN = 2,
    CBS_DROPDOWNLIST = 3,
    CBS_AUTOHSCROLL = 0x40,
    CBS_NOINTEGRALHEIGHT = 0x400,
    CB_ADDSTRING = 0x143,
    CB_DELETESTRING = 0x144,
    CB_GETCOUNT = 0x146,
    CB_GETCURSEL = 0x147,
    CB_GETLBTEXT = 0x148,
    CB_GETLBTEXTLEN = 0x149,
    CB_INSERTSTRING = 0x14A,
    CB_RESETCONTENT = 0x14B,
    CB_SETCURSEL = 0x14E,
    CB_SHOWDROPDOWN = 0x14F,
    CB_GETDROPPEDSTATE = 0x157,
    CBN_SELCHANGE = 1,
    CBN_SETFOCUS = 3,
    CBN_KILLFOCUS = 4,
    CBN_EDITCHANGE = 5,
    CBN_EDITUPDATE = 6,
    CBN_DROPDOWN = 7,
    CBN_CLOSEUP = 8,
    CBN_SELENDOK = 9,
    CBN_SELENDCANCEL = 10,

    ODT_LISTBOX = 2,
    ODA_DRAWENTIRE = 1,
    ODS_SELECTED = 1,
    ODS_CHECKED = 8,
    ODS_FOCUS = 0x10,

    SWP_NOSIZE = 1,
    SWP_NOMOVE = 2,
    SWP_NOZORDER = 4,
    SWP_NOREDRAW = 8,
    SWP_NOACTIVATE = 0x10,
    SWP_FRAMECHANGED = 0x20,
    SWP_SHOWWINDOW = 0x40,
    SWP_HIDEWINDOW = 0x80,
    SWP_NOOWNERZORDER = 0x200,
    GW_HWNDNEXT = 2,
    GW_OWNER = 4,
    GW_CHILD = 5,
    MONITOR_DEFAULTTONEAREST = 2,
    ETO_OPAQUE = 2,
    ETO_CLIPPED = 4,
    DFC_BUTTON = 4,
};

inline constexpr int LB_ERR = -1;
inline constexpr int LB_ERRSPACE = -2;
inline constexpr int CB_ERR = -1;
inline constexpr int CB_ERRSPACE = -2;
inline constexpr int GWL_STYLE = -16;
inline constexpr int GWL_EXSTYLE = -20;
inline constexpr int GWLP_WNDPROC = -4;
inline constexpr int SM_CXVSCROLL = 2;
inline constexpr int SM_CXMINTRACK = 34;
inline constexpr int SM_CYMINTRACK = 35;
inline constexpr int WH_CBT = 5;
inline constexpr int HCBT_CREATEWND = 3;
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOW = 5;
inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;
inline constexpr int DFCS_BUTTONCHECK = 0;
inline constexpr int DFCS_INACTIVE = 0x100;
inline constexpr int DFCS_CHECKED = 0x400;
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_GRAYTEXT = 17;

int lstrcmpiA(LPCSTR left, LPCSTR right);
DWORD GetLastError();
void SetLastError(DWORD error);
DWORD GetCurrentProcessId();

// Messages and their queue
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);
// Takes the quit message: outside of modal runs nobody looks for another.
BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT flags);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
BOOL KillTimer(HWND window, UINT_PTR id);
ULONGLONG GetTickCount64();
DWORD GetCurrentThreadId();

// Keyboard
UINT SendInput(UINT count, INPUT* inputs, int size);
short GetKeyState(int key);
UINT MapVirtualKeyA(UINT code, UINT kind);

// Windows
HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU id, HINSTANCE instance, void* parameter);
BOOL DestroyWindow(HWND window);
// The one hook there is sees windows before they are created: WH_CBT with HCBT_CREATEWND.
HHOOK SetWindowsHookExA(int kind, HOOKPROC procedure, HINSTANCE instance, DWORD thread);
BOOL UnhookWindowsHookEx(HHOOK hook);
inline LRESULT CallNextHookEx(HHOOK /*hook*/, int /*code*/, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return 0;
}
BOOL IsWindow(HWND window);
LONG_PTR GetWindowLongPtrA(HWND window, int index);
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
inline LONG GetWindowLongA(HWND window, int index)
{
    return static_cast<LONG>(GetWindowLongPtrA(window, index));
}
int GetClassNameA(HWND window, char* buffer, int size);
int GetDlgCtrlID(HWND window);
HWND GetDlgItem(HWND dialog, int id);
// The first child of a class with any text.
HWND FindWindowExA(HWND parent, HWND after, LPCSTR className, LPCSTR text);
HWND GetParent(HWND window);
HWND GetWindow(HWND window, UINT relation);
BOOL EnumThreadWindows(DWORD thread, WNDENUMPROC procedure, LPARAM parameter);
BOOL SetWindowTextA(HWND window, LPCSTR text);
int GetWindowTextA(HWND window, char* buffer, int size);
int GetWindowTextLengthA(HWND window);
BOOL EnableWindow(HWND window, BOOL enable);
BOOL IsWindowEnabled(HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL IsWindowVisible(HWND window);
inline BOOL IsIconic(HWND /*window*/)
{
    return FALSE;
}
inline BOOL IsWindowUnicode(HWND /*window*/)
{
    return FALSE;
}
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
BOOL GetClientRect(HWND window, RECT* rect);
BOOL GetWindowRect(HWND window, RECT* rect);
inline BOOL InvalidateRect(HWND /*window*/, const RECT* /*rect*/, BOOL /*erase*/)
{
    return TRUE;
}
inline BOOL ValidateRect(HWND /*window*/, const RECT* /*rect*/)
{
    return TRUE;
}
// Points of one window's client area as points of another's; null is the screen.
int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count);
HWND SetFocus(HWND window);
HWND GetFocus();
HWND GetActiveWindow();
HWND SetActiveWindow(HWND window);
HWND SetCapture(HWND window);
HWND GetCapture();
BOOL ReleaseCapture();
HMONITOR MonitorFromWindow(HWND window, DWORD flags);
BOOL GetMonitorInfoA(HMONITOR monitor, MONITORINFO* info);
int GetSystemMetrics(int index);

BOOL IsChild(HWND parent, HWND window);

// Dialogs
// The control that the tab key reaches from the given one.
HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
INT_PTR DialogBoxParamA(HINSTANCE instance, LPCSTR name, HWND owner, DLGPROC procedure, LPARAM parameter);
BOOL EndDialog(HWND dialog, INT_PTR result);
int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
inline BOOL MessageBeep(UINT /*type*/)
{
    return TRUE;
}

// Cursors and icons
HCURSOR SetCursor(HCURSOR cursor);
HCURSOR GetCursor();
inline HCURSOR LoadCursorA(HINSTANCE /*instance*/, LPCSTR name)
{
    return reinterpret_cast<HCURSOR>(const_cast<char*>(name));
}
inline HICON LoadIconW(HINSTANCE /*instance*/, LPCWSTR name)
{
    return reinterpret_cast<HICON>(const_cast<wchar_t*>(name));
}

// Device contexts: the font counts, since text is measured
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC device);
int GetDeviceCaps(HDC device, int index);
HGDIOBJ SelectObject(HDC device, HGDIOBJ object);
BOOL GetTextExtentPoint32A(HDC device, LPCSTR text, int length, SIZE* size);
BOOL GetTextMetricsA(HDC device, TEXTMETRICA* metrics);
int MulDiv(int number, int numerator, int denominator);
BOOL PtInRect(const RECT* rect, POINT point);
inline int FillRect(HDC /*device*/, const RECT* /*rect*/, HBRUSH /*brush*/)
{
    return TRUE;
}
inline HBRUSH GetSysColorBrush(int /*index*/)
{
    return nullptr;
}
inline DWORD GetSysColor(int /*index*/)
{
    return 0;
}
inline COLORREF SetTextColor(HDC /*device*/, COLORREF /*color*/)
{
    return 0;
}
inline COLORREF SetBkColor(HDC /*device*/, COLORREF /*color*/)
{
    return 0;
}
inline BOOL ExtTextOutA(HDC /*device*/, int /*x*/, int /*y*/, UINT /*options*/, const RECT* /*rect*/, LPCSTR /*text*/,
                        UINT /*length*/, const int* /*distances*/)
{
    return TRUE;
}
inline BOOL DrawFocusRect(HDC /*device*/, const RECT* /*rect*/)
{
    return TRUE;
}
inline BOOL DrawFrameControl(HDC /*device*/, RECT* /*rect*/, UINT /*type*/, UINT /*state*/)
{
    return TRUE;
}

// Libraries
// Null for the program itself.
HMODULE GetModuleHandleA(LPCSTR name);
BOOL GetModuleHandleExA(DWORD flags, LPCSTR address, HMODULE* module);
HMODULE LoadLibraryA(LPCSTR name);
FARPROC GetProcAddress(HMODULE library, LPCSTR name);
BOOL FreeLibrary(HMODULE library);
inline DWORD GetThreadErrorMode()
{
    return 0;
}
inline BOOL SetThreadErrorMode(DWORD /*mode*/, DWORD* previous)
{
    if (previous != nullptr)
        *previous = 0;
    return TRUE;
}

// There is one set of controls here, and no manifest that asks for another.
inline BOOL QueryActCtxW(DWORD /*flags*/, HANDLE /*context*/, void* /*part*/, DWORD /*kind*/, void* /*information*/,
                         size_t /*size*/, size_t* /*written*/)
{
    return FALSE;
}
inline BOOL ActivateActCtx(HANDLE /*context*/, ULONG_PTR* /*cookie*/)
{
    return FALSE;
}
inline BOOL DeactivateActCtx(DWORD /*flags*/, ULONG_PTR /*cookie*/)
{
    return FALSE;
}

// Files and folders
DWORD GetModuleFileNameA(HMODULE module, char* buffer, DWORD size);
DWORD GetCurrentDirectoryA(DWORD size, char* buffer);
DWORD GetTempPathA(DWORD size, char* buffer);
BOOL CreateDirectoryA(LPCSTR folder, const void* security);
BOOL RemoveDirectoryA(LPCSTR folder);
BOOL CopyFileA(LPCSTR from, LPCSTR to, BOOL keepExisting);
BOOL DeleteFileA(LPCSTR file);
#define MOVEFILE_REPLACE_EXISTING 0x1
// Replaces a file that exists; the flags are ignored.
BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags);

// Texts in code page 1252, UTF-8 and wide characters. The terminal of this machine reads UTF-8.
int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int length, wchar_t* buffer, int size);
int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int length, char* buffer, int size,
                        LPCSTR replacement, BOOL* isReplaced);
inline BOOL SetConsoleOutputCP(UINT /*codePage*/)
{
    return TRUE;
}

// Profile files, and the runtime's local time: 0 when the time has one.
DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR defaultText, char* buffer, DWORD size, LPCSTR file);
DWORD GetPrivateProfileSectionA(LPCSTR section, char* buffer, DWORD size, LPCSTR file);
BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR value, LPCSTR file);
inline int _localtime64_s(std::tm* local, const std::time_t* time)
{
    return localtime_r(time, local) != nullptr ? 0 : EINVAL;
}

// There is one thread, and it lives.
inline HANDLE OpenThread(DWORD /*access*/, BOOL /*isInherited*/, DWORD /*thread*/)
{
    return nullptr;
}
inline DWORD WaitForSingleObject(HANDLE /*object*/, DWORD /*milliseconds*/)
{
    return WAIT_TIMEOUT;
}
inline BOOL CloseHandle(HANDLE /*object*/)
{
    return TRUE;
}
inline void InitializeCriticalSection(CRITICAL_SECTION* /*section*/) {}
inline void DeleteCriticalSection(CRITICAL_SECTION* /*section*/) {}
inline void EnterCriticalSection(CRITICAL_SECTION* /*section*/) {}
inline void LeaveCriticalSection(CRITICAL_SECTION* /*section*/) {}
