// Visual themes, which the native build does not have.
#pragma once

#include <windows.h>

using HTHEME = void*;

inline HTHEME OpenThemeData(HWND /*window*/, LPCWSTR /*classes*/)
{
    return nullptr;
}
inline void CloseThemeData(HTHEME /*theme*/) {}
inline void DrawThemeBackground(HTHEME /*theme*/, HDC /*device*/, int /*part*/, int /*state*/, const RECT* /*rect*/,
                                const RECT* /*clip*/)
{
}
