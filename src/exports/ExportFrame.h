// The frame that the exports share, and the copies between the caller's texts and ours.
#pragma once

#include "system/ModalWindows.h"
#include "system/Unwound.h"
#include <afx.h>
#include <afxstat_.h>

// Restores the cursor and the focus of the host when it is destroyed.
class HostState
{
public:
    HostState();
    HostState(const HostState&) = delete;
    HostState& operator=(const HostState&) = delete;
    ~HostState();

private:
    HCURSOR m_cursor;
    HWND m_active; // the thread's active window
    HWND m_focus;
};

// Entered first by every export but lytGetTextFromIniFile: switches the module state and tries the companion library. The
// state is switched back on every way out.
class QuietFrame
{
public:
    QuietFrame();

private:
    AFX_MAINTAIN_STATE m_state;
};

// The same for an export that shows windows or calls a partner library: cursor and focus of the host are as before on
// every way out, too.
class ExportFrame
{
private:
    HostState m_host;
    QuietFrame m_frame;
};

// While one thread has windows up, a call from another would change what they work on: it returns `refusal`, and does nothing.
#define LYT_REFUSE_OTHER_THREADS(refusal)                                                                              \
    if (ModalWindows::AreElsewhere())                                                                                  \
    return refusal

#define LYT_EXPORT_FRAME(refusal)                                                                                      \
    LYT_REFUSE_OTHER_THREADS(refusal);                                                                                 \
    const Unwound<ExportFrame> exportFrame
// Asking for cursor and focus costs more than a short export does, so one that reaches neither a window nor a partner
// leaves it out.
#define LYT_QUIET_FRAME(refusal)                                                                                       \
    LYT_REFUSE_OTHER_THREADS(refusal);                                                                                 \
    const QuietFrame exportFrame

// False for a null buffer or a size below 1: the export returns 0 and does nothing.
bool IsUsable(const char* buffer, int size);

// Copies a text with its NUL. One that does not fit leaves the buffer empty, as the runtime's own copy does before it
// calls the handler that may end the host; that handler is never reached from here.
void CopyText(char* buffer, int size, const char* text);

// The same; a text longer than the size also gets a NUL at buffer[size], one byte beyond the stated size, where callers
// leave room for it.
void CopyTextMarkingEnd(char* buffer, int size, const char* text);

// Copies a text out and returns 1 when the buffer then holds one, else 0.
int CopyOut(char* buffer, int size, const char* text);

// The text in a caller's buffer, up to its NUL and never beyond its size.
CString TextIn(const char* buffer, int size);
