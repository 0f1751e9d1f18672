#include "exports/ExportFrame.h"

#include "base/PartnerLibrary.h"

#include <algorithm>
#include <cstring>

namespace
{

HMODULE lytLibrary = nullptr;

// A companion library may stand beside the host. Nothing reads the handle, and a failed load is tried again by the
// next call. What the companion does when it is loaded is its own affair, but the host must not notice.
void LoadCompanion()
{
    if (lytLibrary != nullptr)
        return;
    const HostState host;
    lytLibrary = lytLoadLibrary("lyt");
}

} // namespace

HostState::HostState() : m_cursor(GetCursor()), m_active(GetActiveWindow()), m_focus(GetFocus()) {}

HostState::~HostState()
{
    if (GetCursor() != m_cursor)
        SetCursor(m_cursor);
    if (GetFocus() == m_focus)
        return;
    // A host without a focus gets none. If it had no active window either and has one at the end, the user has come to
    // it meanwhile, and without the focus that window would not hear the keyboard.
    const bool isToBeRestored = m_focus != nullptr ? IsWindow(m_focus) != FALSE : GetActiveWindow() == m_active;
    if (isToBeRestored)
        SetFocus(m_focus);
}

QuietFrame::QuietFrame() : m_state(AfxGetStaticModuleState())
{
    LoadCompanion();
}

bool IsUsable(const char* buffer, int size)
{
    return buffer != nullptr && size >= 1;
}

void CopyText(char* buffer, int size, const char* text)
{
    const size_t length = std::strlen(text);
    if (length >= static_cast<size_t>(size))
        buffer[0] = '\0';
    else
        std::memcpy(buffer, text, length + 1);
}

void CopyTextMarkingEnd(char* buffer, int size, const char* text)
{
    CopyText(buffer, size, text);
    if (std::strlen(text) > static_cast<size_t>(size))
        buffer[size] = '\0';
}

int CopyOut(char* buffer, int size, const char* text)
{
    if (!IsUsable(buffer, size))
        return 0;
    CopyText(buffer, size, text);
    return buffer[0] != '\0' ? 1 : 0;
}

CString TextIn(const char* buffer, int size)
{
    const char* end = std::find(buffer, buffer + size, '\0');
    return {buffer, static_cast<int>(end - buffer)};
}
