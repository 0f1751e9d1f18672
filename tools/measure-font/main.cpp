// Prints what this platform measures at its resolution: one entry of the table in native/Measured.cpp.
#include "res/resource.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdio>

namespace
{

SIZE FrameOf(HWND dialog)
{
    RECT outer{};
    RECT inner{};
    GetWindowRect(dialog, &outer);
    GetClientRect(dialog, &inner);
    return {outer.right - outer.left - inner.right, outer.bottom - outer.top - inner.bottom};
}

void PrintFont(HDC device)
{
    for (int ch = 0; ch < 256; ++ch)
    {
        const char text = static_cast<char>(ch);
        SIZE extent{};
        GetTextExtentPoint32A(device, &text, 1, &extent);
        std::printf("%s%ld,", ch % 24 == 0 ? "\n         " : " ", extent.cx);
    }
}

INT_PTR CALLBACK MeasureSizingFrame(HWND dialog, UINT message, WPARAM /*wParam*/, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    *reinterpret_cast<SIZE*>(lParam) = FrameOf(dialog);
    EndDialog(dialog, 0);
    return TRUE;
}

INT_PTR CALLBACK MeasureDialog(HWND dialog, UINT message, WPARAM /*wParam*/, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    const SIZE sizing = *reinterpret_cast<const SIZE*>(lParam);
    const SIZE fixed = FrameOf(dialog);
    RECT units{0, 0, 4, 8};
    MapDialogRect(dialog, &units);
    HDC device = GetDC(dialog);
    SelectObject(device, reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
    TEXTMETRICA metrics{};
    GetTextMetricsA(device, &metrics);
    std::printf("    {%d, %ld, %ld, %ld, %d, %d, {%ld, %ld}, %ld,\n     {", GetDeviceCaps(device, LOGPIXELSX), fixed.cx,
                sizing.cx, fixed.cy - fixed.cx, GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CXMINTRACK),
                units.right, units.bottom, metrics.tmHeight);
    PrintFont(device);
    std::printf("\n     }},\n");
    ReleaseDC(dialog, device);
    EndDialog(dialog, 0);
    return TRUE;
}

} // namespace

int main()
{
    InitCommonControls();
    SIZE sizing{};
    DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_TREE), nullptr, MeasureSizingFrame,
                    reinterpret_cast<LPARAM>(&sizing));
    DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_PROPERTIES), nullptr, MeasureDialog,
                    reinterpret_cast<LPARAM>(&sizing));
}
