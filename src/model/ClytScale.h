#pragma once

// What layout units are multiplied by at the two resolutions that the library knows.
struct ClytResolution
{
    int pixelsPerInch;
    float x;
    float y;
};

inline constexpr ClytResolution lytResolutions[] = {
    {96, 0.7557F, 1.0818F},
    {120, 1.0033F, 1.3159F},
};

// What a check mark and the gap after it take, in layout units.
inline constexpr double lytCheckMarkUnits = -28.0;

// The present factors; set by the dialog from the screen's resolution, 1 without a window.
extern float lytScaleX;
extern float lytScaleY;

// Layout units to window units, cut to an integer; what no integer holds becomes the nearest one.
int lytScaled(int units, float factor);
