#include "TestWindows.h"

#include <afxcmn.h>

#include <stdexcept>

namespace
{

// Its message fails too.
class UnreportableException : public CException
{
public:
    int ReportError(UINT /*type*/, UINT /*help*/) override { throw std::runtime_error("while reporting"); }
};

class TestException : public CException
{
public:
    BOOL GetErrorMessage(char* buffer, UINT size, UINT* /*helpContext*/) const override
    {
        return CopyMessage("raised by a handler", buffer, size);
    }
};

} // namespace

BEGIN_MESSAGE_MAP(RecordingWindow, CWnd)
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_DESTROY()
    ON_COMMAND(7, OnChosen)
    ON_NOTIFY(NM_DBLCLK, 9, OnNotification)
    ON_MESSAGE(questionMessage, OnQuestion)
END_MESSAGE_MAP()

RecordingWindow::RecordingWindow()
{
    const CRect rect(0, 0, 100, 80);
    CreateEx(0, "Static", "recording", WS_POPUP, rect, nullptr, 0);
}

void RecordingWindow::OnSize(UINT kind, int width, int height)
{
    Note("size " + std::to_string(kind) + " " + std::to_string(width) + " " + std::to_string(height));
}

void RecordingWindow::OnLButtonDown(UINT flags, CPoint point)
{
    Note("down " + std::to_string(flags) + " " + std::to_string(point.x) + " " + std::to_string(point.y));
}

void RecordingWindow::OnKeyDown(UINT key, UINT count, UINT flags)
{
    Note("key " + std::to_string(key) + " " + std::to_string(count) + " " + std::to_string(flags));
}

void RecordingWindow::OnDestroy()
{
    Note("destroy");
    CWnd::OnDestroy();
}

void RecordingWindow::OnNotification(NMHDR* header, LRESULT* result)
{
    Note("notified by " + std::to_string(header->idFrom));
    *result = 42;
}

LRESULT RecordingWindow::OnQuestion(WPARAM wParam, LPARAM lParam)
{
    // A message sent meanwhile must not take this one's place.
    if (wParam == 1)
        SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("inner"));
    Note("question");
    return wParam == 1 ? Default() : lParam + 1;
}

BEGIN_MESSAGE_MAP(FailingWindow, RecordingWindow)
    ON_MESSAGE(failMessage, OnFail)
    ON_MESSAGE(WM_PAINT, OnPaintFails)
    ON_COMMAND(7, OnChosen)
END_MESSAGE_MAP()

LRESULT FailingWindow::OnFail(WPARAM wParam, LPARAM /*lParam*/)
{
    switch (wParam)
    {
    case 0: throw new TestException;
    case 1: throw std::runtime_error("a plain failure");
    case 2: throw 7;
    default: throw new UnreportableException;
    }
}

LRESULT FailingWindow::OnPaintFails(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    ++paints;
    throw new TestException;
}

void FailingWindow::OnChosen()
{
    Note("own handler");
    throw new TestException;
}

BOOL ScriptedDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    unicode = ::IsWindowUnicode(m_hWnd) != FALSE;
    record.emplace_back("init");
    if (init == Init::EndAtOnce)
        EndDialog(33);
    if (init == Init::Raise)
        throw new TestException;
    return TRUE;
}

void ScriptedDialog::OnOK()
{
    record.emplace_back("ok");
    CDialog::OnOK();
}

void ScriptedDialog::OnCancel()
{
    record.emplace_back("cancel");
    CDialog::OnCancel();
}
