#include "controls/ClytWindowControl.h"

#include "model/ClytScale.h"

#include <algorithm>
#include <cstring>

namespace
{

HGDIOBJ DialogFont(const CWnd& dialog)
{
    return reinterpret_cast<HGDIOBJ>(dialog.SendMessage(WM_GETFONT));
}

} // namespace

CRect lytLayoutRect(ClytPosition position, ClytSize size)
{
    const auto cut = [](int length)
    {
        constexpr int limit = 1 << 29;
        return std::clamp(length, -limit, limit);
    };
    const int left = cut(position.x);
    const int top = cut(position.y);
    return {left, top, left + cut(size.width), top + cut(size.height)};
}

void lytTakeDialogFont(const CWnd& window, const CWnd& dialog)
{
    window.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(DialogFont(dialog)), TRUE);
}

void lytFitToCaption(const CWnd& window, const CWnd& dialog, ClytPosition position, const char* caption, ClytFit fit)
{
    const CClientDC context(&dialog);
    const HGDIOBJ previous = context.SelectObject(DialogFont(dialog));
    CSize extent = context.GetTextExtent(caption, static_cast<int>(std::strlen(caption)));
    context.SelectObject(previous);

    if (fit == ClytFit::ToCaptionWithMargin)
        extent.cx -= static_cast<int>(static_cast<double>(lytScaleX) * lytCheckMarkUnits);
    window.SetWindowPos(nullptr, position.x, position.y, extent.cx, extent.cy, SWP_NOZORDER);
}

void lytSetWindowState(const CWnd& window, ClytState state, int on)
{
    // In most runs of a rule its window is in that state already. Asking the window costs little beside what the
    // platform does before it finds that nothing changes.
    const bool isActive = state == ClytState::Active;
    const bool hasStyle = (window.GetStyle() & (isActive ? WS_DISABLED : WS_VISIBLE)) != 0;
    const bool isOn = isActive ? !hasStyle : hasStyle;
    if (isOn == (on != 0))
        return;
    if (isActive)
        window.EnableWindow(on != 0);
    else
        window.ShowWindow(on != 0 ? SW_SHOW : SW_HIDE);
}
