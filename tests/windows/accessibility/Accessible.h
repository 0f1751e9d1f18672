// What a screen reader learns of a window, as the platform's accessibility interface tells it.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

// Texts are in UTF-8.
struct Accessible
{
    long role = 0;
    std::string name;
    std::string value;
    std::string shortcut;
    std::vector<std::string> states;
    std::vector<std::string> items; // of a list; the chosen one is marked
    // False when the platform has no description for windows of this class, and reports a client area only. Role, marks
    // and items, and the name of a list, then are those that Windows gives to windows of this class and style.
    bool isTold = false;
};

Accessible Describe(HWND window);

// One line, and one for each item of a list: role, name, value, shortcut and states.
std::string TextOf(const Accessible& accessible);
