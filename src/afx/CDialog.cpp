#include <afxwin.h>

#include "system/CallbackFailure.h"
#include "system/ModalOwner.h"
#include "system/ModalWindows.h"
#include "system/ModernControls.h"
#include "system/Unwound.h"

#include <commctrl.h>

namespace
{

// A run that breaks off leaves no window. One of the same dialog around it, in which it does not begin, keeps its own.
class RunWindow
{
public:
    explicit RunWindow(CDialog& dialog) : m_dialog(dialog), m_before(dialog.m_hWnd) {}
    RunWindow(const RunWindow&) = delete;
    RunWindow& operator=(const RunWindow&) = delete;
    ~RunWindow()
    {
        if (m_dialog.m_hWnd != m_before)
            m_dialog.DestroyWindow();
    }

private:
    CDialog& m_dialog;
    HWND m_before;
};

// What the dialog procedure is handed: the object to join with the window, and room for what goes wrong in that.
struct Creation
{
    CDialog& dialog;
    CallbackFailure failure;
};

} // namespace

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

INT_PTR CDialog::DoModal()
{
    const Unwound<ModalWindows> windows;
    if (!windows->AreAllowed())
        return -1;
    const Unwound<ModernControls> modernControls;
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TREEVIEW_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&classes);

    INT_PTR result = -1;
    m_nModalResult = IDCANCEL;
    Creation creation{*this, {}};
    {
        const Unwound<ModalOwner> owner(m_pParentWnd != nullptr ? m_pParentWnd->m_hWnd : ::GetActiveWindow());
        const Unwound<RunWindow> window(*this);
        result = ::DialogBoxParamA(AfxGetResourceHandle(), MAKEINTRESOURCEA(m_nIDTemplate), owner->Get(), DialogProc,
                                   reinterpret_cast<LPARAM>(&creation));
    }
    creation.failure.Rethrow();
    constexpr INT_PTR notCreated = -1;
    return result == notCreated ? notCreated : m_nModalResult;
}

void CDialog::EndDialog(int result)
{
    m_nModalResult = result;
    ::EndDialog(m_hWnd, result);
}

// The platform's own dialog procedure stays in charge of keys and focus; ours only joins the object with its window.
INT_PTR CALLBACK CDialog::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message != WM_INITDIALOG)
        return FALSE;
    auto& creation = *reinterpret_cast<Creation*>(lParam);
    BOOL isJoined = FALSE;
    if (!creation.failure.Run([&] { isJoined = creation.dialog.SubclassWindow(window); }) || !isJoined)
    {
        ::EndDialog(window, -1);
        return FALSE;
    }
    return AfxCallWndProc(creation.dialog, message, wParam, lParam);
}

LRESULT CDialog::HandleInitDialog(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return OnInitDialog();
}

BOOL CDialog::OnInitDialog()
{
    return TRUE;
}

void CDialog::OnOK()
{
    EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}
