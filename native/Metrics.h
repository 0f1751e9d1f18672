// What the platform measures at a resolution, taken from the real one: frames, and the dialog's font.
#pragma once

#include <windows.h>

namespace platform
{

struct Metrics
{
    int pixelsPerInch;
    int fixedFrame; // what the frame takes of the width
    int sizingFrame;
    int captionHeight;
    int scrollBarWidth;
    int minimalWidth; // of a window that can be sized
    SIZE baseUnits;   // a quarter of the width and an eighth of the height are dialog units
    int textHeight;
    int advanceWidths[256]; // of the dialog's font, by character
};

const Metrics& CurrentMetrics();
// Other resolutions than 96 and 120 have the metrics of 96.
int PixelsPerInch();

// The handle under which windows and device contexts have the dialog's font.
HGDIOBJ DialogFont();
// The height of a line of text in a font; the system's own font, for null, is higher.
int LineHeight(HGDIOBJ font);
// The width of a text in the dialog's font.
int TextWidth(const char* text, int length);

// The table of one resolution for each entry; made by scripts/measure-font.
extern const Metrics measured[2];

} // namespace platform
