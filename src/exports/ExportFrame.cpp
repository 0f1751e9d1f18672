#include "exports/ExportFrame.h"

#include <algorithm>
#include <cstring>

namespace
{

HMODULE lytLibrary = nullptr;

// A companion library may stand beside the host. Nothing reads the handle, and a failed load is tried again by the
// next call.
void LoadCompanion()
{
    if (lytLibrary == nullptr)
        lytLibrary = LoadLibraryA("lyt");
}

} // namespace

QuietFrame::QuietFrame() : m_state(AfxGetStaticModuleState())
{
    LoadCompanion();
}

ExportFrame::ExportFrame() : m_cursor(GetCursor()), m_focus(GetFocus()) {}

ExportFrame::~ExportFrame()
{
    if (GetCursor() != m_cursor)
        SetCursor(m_cursor);
    if (m_focus != nullptr && GetFocus() != m_focus && IsWindow(m_focus))
        SetFocus(m_focus);
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
