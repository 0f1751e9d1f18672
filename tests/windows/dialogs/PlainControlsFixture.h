// A dialog with one of each plain control beside its own three.
#pragma once

#include "DialogFixture.h"

class PlainControls : public DialogFixture
{
protected:
    PlainControls()
    {
        description.controls += "TextBox 10, 40, 150, 15, .Edit\nText 10, 70, 50, 12, \"Label\", .Static\n"
                                "GroupBox 5, 90, 200, 50, \"Label\", .Frame\n";
    }
    static HWND Key(HWND dialog) { return robot::ChildAt(dialog, 0); }
    static HWND Ok(HWND dialog) { return robot::ChildAt(dialog, 1); }
    static HWND Cancel(HWND dialog) { return robot::ChildAt(dialog, 2); }
    static HWND Edit(HWND dialog) { return robot::ChildAt(dialog, 3); }
    static HWND Static(HWND dialog) { return robot::ChildAt(dialog, 4); }
    static HWND Frame(HWND dialog) { return robot::ChildAt(dialog, 5); }
    static DWORD StyleOf(HWND window) { return static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE)); }
    static SIZE SizeOf(HWND window)
    {
        RECT rect{};
        GetWindowRect(window, &rect);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }

    Description description;
};
