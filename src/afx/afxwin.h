// The window half of the class library: windows, dialogs, controls and device contexts.
//
// A CWnd belongs to one window. It joins that window by replacing its window procedure, so that every message passes
// the message map of its class first and then, unless a handler ended it, the procedure that was there before. No
// exception leaves that way: what a handler raises is reported to the user, and the window stays.
#pragma once

#include <afx.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <afxmsg_.h>
#include <afxstat_.h>
#include <atltypes.h>

class CWinApp : public CObject
{
};

class CCmdTarget : public CObject
{
protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

class CWnd : public CCmdTarget
{
public:
    CWnd() = default;
    // A window that still exists is destroyed; no message reaches the dying object.
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    // Creates a child window and joins it; false when it cannot be created. PreCreateWindow sees the parameters first.
    BOOL Create(const char* className, const char* windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    BOOL CreateEx(DWORD exStyle, const char* className, const char* windowName, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id);
    BOOL DestroyWindow();
    // Joins a window that exists already and has no object yet; leaves it again with the procedure that it had, unless
    // somebody has put another one on top since.
    BOOL SubclassWindow(HWND window);
    HWND UnsubclassWindow();

    // The object that joined the window, else null; FromHandle then gives an object that lives until the outermost
    // modal dialog ends.
    static CWnd* FromHandlePermanent(HWND window);
    static CWnd* FromHandle(HWND window);
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    // The tab stop after a child of this dialog, or the one before it.
    CWnd* GetNextDlgTabItem(const CWnd* child, BOOL previous = FALSE) const
    {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, child->m_hWnd, previous));
    }

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrA(m_hWnd, GWL_STYLE)); }
    // False when the window has the style already.
    BOOL ModifyStyle(DWORD remove, DWORD add) const;
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    void SetWindowText(const char* text) const { ::SetWindowTextA(m_hWnd, text); }
    void GetWindowText(CString& text) const;
    BOOL EnableWindow(BOOL enable = TRUE) const { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int command) const { return ::ShowWindow(m_hWnd, command); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void SetRedraw(BOOL redraw = TRUE) const { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }
    void Invalidate(BOOL erase = TRUE) const { ::InvalidateRect(m_hWnd, nullptr, erase); }
    // An object without a window takes the focus from no one.
    CWnd* SetFocus() const;
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags) const;
    void GetClientRect(RECT* rect) const { ::GetClientRect(m_hWnd, rect); }
    void GetWindowRect(RECT* rect) const { ::GetWindowRect(m_hWnd, rect); }
    // Centers a top-level window over its visible owner, else on the screen, and keeps it on the work area.
    void CenterWindow() const;

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCTA& create);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Hands the message that is being handled to the procedure that the window had before.
    LRESULT Default();
    // True when the message is done with.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    // A message about this control that its parent received.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    // The last call to the object; the window is gone.
    virtual void PostNcDestroy() {}

    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnSize(UINT /*kind*/, int /*width*/, int /*height*/) { Default(); }
    afx_msg void OnLButtonDown(UINT /*flags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnLButtonDblClk(UINT /*flags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnKeyDown(UINT /*key*/, UINT /*count*/, UINT /*flags*/) { Default(); }

private:
    friend LRESULT AfxCallWndProc(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    BOOL Dispatch(UINT message, UINT code, UINT id, LRESULT* result);
    void OnNcDestroy();

    WNDPROC m_pfnSuper = nullptr;
};

// The one place where a message is handled, and the handler of last resort around it: what is raised is reported, and
// nothing crosses a window procedure.
LRESULT AfxCallWndProc(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
// Called inside a catch block: shows the user the exception that is being handled, of any type. A report that fails in
// its turn is dropped: nobody could see it.
void ReportCurrentFailure() noexcept;
// The same without a message.
void DropCurrentFailure() noexcept;

// A modal dialog over a template of the resources.
class CDialog : public CWnd
{
public:
    explicit CDialog(UINT templateId, CWnd* parent = nullptr) : m_nIDTemplate(templateId), m_pParentWnd(parent) {}

    // Runs the dialog; its owner is the parent, or the thread's active window without one. Gives what the object passed
    // to EndDialog; IDCANCEL when others ended or destroyed the window, or a quit message did, which waits for the host's
    // own loop again; -1 when there is no such template, the object has a window already or another thread has windows
    // up. Raises what joining the window raised, once the window is gone again.
    virtual INT_PTR DoModal();
    void EndDialog(int result);
    // Gives a child the focus as the Tab key does.
    void GotoDlgCtrl(const CWnd* child) const
    {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(child->m_hWnd), TRUE);
    }

protected:
    // TRUE lets the platform choose the control that has the focus first.
    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    UINT m_nIDTemplate;
    int m_nModalResult = IDCANCEL; // what the object passed to EndDialog
    CWnd* m_pParentWnd;            // outlives the modal run
};

class CButton : public CWnd
{
public:
    using CWnd::Create;
    BOOL Create(const char* caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("Button", caption, style, rect, parent, id);
    }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) const { SendMessage(BM_SETCHECK, static_cast<WPARAM>(check)); }
};

class CStatic : public CWnd
{
public:
    using CWnd::Create;
    BOOL Create(const char* text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xffff)
    {
        return CWnd::Create("Static", text, style, rect, parent, id);
    }
};

class CEdit : public CWnd
{
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // Selects the characters and brings the caret into view.
    void SetSel(int start, int end) const;
    void Clear() const { SendMessage(WM_CLEAR); }
};

class CListBox : public CWnd
{
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetCount() const { return static_cast<int>(SendMessage(LB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    int SetCurSel(int index) const { return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(index))); }
    int GetCaretIndex() const { return static_cast<int>(SendMessage(LB_GETCARETINDEX)); }
    int GetTopIndex() const { return static_cast<int>(SendMessage(LB_GETTOPINDEX)); }
    int GetItemHeight(int index) const
    {
        return static_cast<int>(SendMessage(LB_GETITEMHEIGHT, static_cast<WPARAM>(index)));
    }
    int SetItemHeight(int index, UINT height) const
    {
        return static_cast<int>(SendMessage(LB_SETITEMHEIGHT, static_cast<WPARAM>(index), static_cast<LPARAM>(height)));
    }
    int GetItemRect(int index, RECT* rect) const;
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    void GetText(int index, CString& text) const;
    int AddString(const char* text) const;
    int InsertString(int index, const char* text) const;
    int DeleteString(int index) const
    {
        return static_cast<int>(SendMessage(LB_DELETESTRING, static_cast<WPARAM>(index)));
    }
    void ResetContent() const { SendMessage(LB_RESETCONTENT); }
};

// Sent to the parent when the user has changed a check mark.
inline constexpr UINT CLBN_CHKCHANGE = 40;

// An owner-drawn list box with a check mark before each item's text. A click on the mark changes it, and so does
// the space key for the item that has the caret.
class CCheckListBox : public CListBox
{
public:
    void SetCheck(int index, int check);
    int GetCheck(int index) const;
    // Draws one item; without a record or a device nothing.
    void DrawItem(DRAWITEMSTRUCT* draw);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetRedraw(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT count, UINT flags);
    afx_msg LRESULT OnChar(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void DrawText(HDC device, int index, const CRect& area, bool selected, bool enabled) const;
    void ToggleAt(CPoint point);
    void Toggle(int index);
    void InvalidateItem(int index) const;

    bool m_bRedraw = true; // false while the window does not draw what changes
};

class CComboBox : public CWnd
{
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int index) const { return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index))); }
    int AddString(const char* text) const;
    int InsertString(int index, const char* text) const;
    int DeleteString(int index) const
    {
        return static_cast<int>(SendMessage(CB_DELETESTRING, static_cast<WPARAM>(index)));
    }
    void ResetContent() const { SendMessage(CB_RESETCONTENT); }
};

// The device context of a window's client area, or of the screen; released at the end, with the object selected last
// put back first.
class CClientDC
{
public:
    explicit CClientDC(const CWnd* window);
    CClientDC(const CClientDC&) = delete;
    CClientDC& operator=(const CClientDC&) = delete;
    ~CClientDC();

    HDC m_hDC;
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }
    HGDIOBJ SelectObject(HGDIOBJ object) const { return ::SelectObject(m_hDC, object); }
    CSize GetTextExtent(const char* text, int count) const;

private:
    HWND m_hWnd;
};
