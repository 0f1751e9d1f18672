// What layout units are multiplied by; set by the dialog from the screen's resolution, 1 without a window.
#pragma once

extern float lytScaleX;
extern float lytScaleY;

// Layout units to window units, cut to an integer; what no integer holds becomes the nearest one.
int lytScaled(int units, float factor);
