#include "exports/ExportFrame.h"

#include "base/PartnerLibrary.h"

#include <algorithm>
#include <cstring>

namespace
{

HMODULE lytLibrary = nullptr;

// There may be a companion library beside the host. Nothing reads the handle, and the next call tries a failed load again.
// The companion may do anything when it is loaded; what the host would see of it is undone.
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
    // A host without a focus gets none. But if it had no active window and has one now, the user has switched to that
    // window, which needs the focus to get the keys.
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
