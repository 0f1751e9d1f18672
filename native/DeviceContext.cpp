// Device contexts measure text; there is nothing to draw on.
#include "MemoryWindows.h"
#include "Metrics.h"

#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace platform
{

namespace
{

constexpr int systemFontHeight = 16;

// A program starts on a screen of 96 pixels per inch, unless the environment names another.
int StartResolution()
{
    const char* named = std::getenv("LYT_DOTS_PER_INCH");
    return named != nullptr ? std::atoi(named) : 96;
}

int currentResolution = StartResolution();
HGDIOBJ selectedFont = nullptr;
HCURSOR currentCursor = LoadCursorA(nullptr, IDC_ARROW);

} // namespace

const Metrics& CurrentMetrics()
{
    for (const Metrics& metrics : measured)
    {
        if (metrics.pixelsPerInch == currentResolution)
            return metrics;
    }
    return measured[0];
}

void SetPixelsPerInch(int pixelsPerInch)
{
    currentResolution = pixelsPerInch;
}

int PixelsPerInch()
{
    return currentResolution;
}

HGDIOBJ DialogFont()
{
    return reinterpret_cast<HGDIOBJ>(uintptr_t{0x10});
}

int LineHeight(HGDIOBJ font)
{
    return font == DialogFont() ? CurrentMetrics().textHeight : systemFontHeight;
}

int TextWidth(const char* text, int length)
{
    const Metrics& metrics = CurrentMetrics();
    return std::accumulate(text, text + length, 0,
                           [&](int sum, char ch)
                           { return sum + metrics.advanceWidths[static_cast<unsigned char>(ch)]; });
}

} // namespace platform

using namespace platform;

HDC GetDC(HWND /*window*/)
{
    selectedFont = nullptr;
    return reinterpret_cast<HDC>(uintptr_t{1});
}

int ReleaseDC(HWND /*window*/, HDC /*device*/)
{
    return TRUE;
}

int GetDeviceCaps(HDC /*device*/, int index)
{
    return index == LOGPIXELSX || index == LOGPIXELSY ? PixelsPerInch() : 0;
}

HGDIOBJ SelectObject(HDC /*device*/, HGDIOBJ object)
{
    return std::exchange(selectedFont, object);
}

BOOL GetTextExtentPoint32A(HDC /*device*/, LPCSTR text, int length, SIZE* size)
{
    *size = {TextWidth(text, length), length > 0 ? LineHeight(selectedFont) : 0};
    return TRUE;
}

BOOL GetTextMetricsA(HDC /*device*/, TEXTMETRICA* metrics)
{
    metrics->tmHeight = LineHeight(selectedFont);
    return TRUE;
}

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    const int64_t product = int64_t{number} * numerator;
    const int64_t half = (product < 0) == (denominator < 0) ? denominator / 2 : -denominator / 2;
    return static_cast<int>((product + half) / denominator);
}

BOOL PtInRect(const RECT* rect, POINT point)
{
    return point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}

HCURSOR SetCursor(HCURSOR cursor)
{
    return std::exchange(currentCursor, cursor);
}

HCURSOR GetCursor()
{
    return currentCursor;
}

HMONITOR MonitorFromWindow(HWND /*window*/, DWORD /*flags*/)
{
    return nullptr;
}

int GetSystemMetrics(int index)
{
    const Metrics& metrics = CurrentMetrics();
    switch (index)
    {
    case SM_CXVSCROLL: return metrics.scrollBarWidth;
    case SM_CXMINTRACK: return metrics.minimalWidth;
    case SM_CYMINTRACK: return metrics.captionHeight + metrics.sizingFrame;
    default: return 0;
    }
}

BOOL GetMonitorInfoA(HMONITOR /*monitor*/, MONITORINFO* info)
{
    info->rcMonitor = info->rcWork = {0, 0, 1024, 768};
    return TRUE;
}
