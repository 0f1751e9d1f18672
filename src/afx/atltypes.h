// Points, sizes and rectangles of the class library.
#pragma once

#include <windows.h>

class CPoint : public POINT
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): without arguments it is the point 0, 0; the name is the published one.
    CPoint(int left = 0, int top = 0) : POINT{left, top} {}
    explicit CPoint(LPARAM packed) : POINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}
};

class CSize : public SIZE
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): as for CPoint.
    CSize(int width = 0, int height = 0) : SIZE{width, height} {}
};

class CRect : public RECT
{
public:
    CRect() : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}

    int Width() const { return static_cast<int>(right - left); }
    // NOLINTNEXTLINE(clang-analyzer-core.*): the analyser does not see what the constructors give to the base.
    int Height() const { return static_cast<int>(bottom - top); }
};
