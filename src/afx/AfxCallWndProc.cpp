#include <afxwin.h>

#include "system/CurrentMessage.h"
#include "system/Unwound.h"

#include <exception>
#include <memory>

namespace
{

void TellCurrentFailure()
{
    try
    {
        throw;
    }
    catch (CException* e)
    {
        const std::unique_ptr<CException, void (*)(CException*)> caught(e,
                                                                        [](CException* failure) { failure->Delete(); });
        caught->ReportError();
    }
    catch (const std::exception& e)
    {
        AfxMessageBox(e.what());
    }
    catch (...)
    {
        AfxMessageBox("An unknown error occurred.");
    }
}

// The result that the sender of a message gets when its handler failed.
LRESULT FailedResult(UINT message)
{
    return message == WM_COMMAND ? TRUE : 0;
}

} // namespace

void ReportCurrentFailure() noexcept
{
    try
    {
        TellCurrentFailure();
    }
    catch (CException* e)
    {
        e->Delete();
    }
    catch (...)
    {
        ::MessageBeep(MB_ICONERROR);
    }
}

void DropCurrentFailure() noexcept
{
    try
    {
        throw;
    }
    catch (CException* e)
    {
        e->Delete();
    }
    catch (...)
    {
        return;
    }
}

LRESULT AfxCallWndProc(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    const HWND handle = window.m_hWnd;
    try
    {
        const MSG received{handle, message, wParam, lParam, 0, {}};
        const Unwound<CurrentMessage> current(received);
        return window.WindowProc(message, wParam, lParam);
    }
    catch (...)
    {
        // A window that is not validated would be painted, and fail, for ever.
        if (message == WM_PAINT)
            ::ValidateRect(handle, nullptr);
        ReportCurrentFailure();
    }
    return FailedResult(message);
}
