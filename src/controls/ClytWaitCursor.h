// The wait cursor for the length of a slow action; on every way out the arrow takes its place.
#pragma once

#include <afxwin.h>

inline void lytSetCursor(LPCSTR cursor)
{
    SetCursor(LoadCursorA(nullptr, cursor));
}

class ClytWaitCursor
{
public:
    ClytWaitCursor() { lytSetCursor(IDC_WAIT); }
    ClytWaitCursor(const ClytWaitCursor&) = delete;
    ClytWaitCursor& operator=(const ClytWaitCursor&) = delete;
    ~ClytWaitCursor() { lytSetCursor(IDC_ARROW); }
};
