#include "controls/ClytWindowControl.h"

#include "dialog/ClytDialog.h"

#include <cstring>

namespace
{

// What a check mark and the gap behind it take, in layout units.
constexpr double checkMarkUnits = -28.0;

HGDIOBJ DialogFont(const ClytDialog& dialog)
{
    return reinterpret_cast<HGDIOBJ>(dialog.SendMessage(WM_GETFONT));
}

} // namespace

void lytTakeDialogFont(const CWnd& window, const ClytDialog& dialog)
{
    window.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(DialogFont(dialog)), TRUE);
}

void lytFitToCaption(const CWnd& window, const ClytDialog& dialog, ClytPosition position, const char* caption,
                     ClytFit fit)
{
    const CClientDC context(&dialog);
    const HGDIOBJ previous = context.SelectObject(DialogFont(dialog));
    CSize extent = context.GetTextExtent(caption, static_cast<int>(std::strlen(caption)));
    context.SelectObject(previous);

    if (fit == ClytFit::ToCaptionWithMargin)
        extent.cx -= static_cast<int>(static_cast<double>(lytScaleX) * checkMarkUnits);
    window.SetWindowPos(nullptr, position.x, position.y, extent.cx, extent.cy, SWP_NOZORDER);
}

void lytSetWindowState(const CWnd& window, const CString& word, int on)
{
    if (word == "ACTIVE")
        window.EnableWindow(on != 0);
    else
        window.ShowWindow(on != 0 ? SW_SHOW : SW_HIDE);
}
