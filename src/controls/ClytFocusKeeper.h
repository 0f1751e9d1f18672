// Keeps the keyboard working. Keys go to the window with the focus, and a dialog whose focused window is disabled or hidden
// has none: it would not even hear Escape.
#pragma once

#include "model/ClytForm.h"

#include <afxwin.h>

// If the focus is inside the form at first and no window has it at the end, the control that had it gets it back, or the
// next tab stop when that control cannot take it. The move runs no rules.
class ClytFocusKeeper
{
public:
    explicit ClytFocusKeeper(ClytForm& keptForm) : form(keptForm), focus(::GetFocus()) {}
    ClytFocusKeeper(const ClytFocusKeeper&) = delete;
    ClytFocusKeeper& operator=(const ClytFocusKeeper&) = delete;
    ~ClytFocusKeeper();

private:
    ClytForm& form; // outlives this
    HWND focus;     // null, or the window that had the focus at first
};
