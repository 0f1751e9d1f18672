#include <afxwin.h>

#include "CurrentMessage.h"

#include <exception>

namespace
{

// A report that fails in its turn is given up: there is no one left to tell.
template <class REPORT>
void Report(REPORT report) noexcept
{
    try
    {
        report();
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

// The result that the sender of a message gets when its handler failed.
LRESULT FailedResult(UINT message)
{
    return message == WM_COMMAND ? TRUE : 0;
}

} // namespace

LRESULT AfxCallWndProc(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    const HWND handle = window.m_hWnd;
    // A window that is not validated would be painted, and fail, for ever.
    const auto stopPainting = [&]
    {
        if (message == WM_PAINT)
            ::ValidateRect(handle, nullptr);
    };
    try
    {
        const MSG received{handle, message, wParam, lParam, 0, {}};
        const CurrentMessage current(received);
        return window.WindowProc(message, wParam, lParam);
    }
    catch (CException* e)
    {
        stopPainting();
        Report([&] { e->ReportError(); });
        e->Delete();
    }
    catch (const std::exception& e)
    {
        stopPainting();
        Report([&] { AfxMessageBox(e.what()); });
    }
    catch (...)
    {
        stopPainting();
        Report([] { AfxMessageBox("An unknown error occurred."); });
    }
    return FailedResult(message);
}
