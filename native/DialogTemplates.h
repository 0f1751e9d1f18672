// The dialog templates of the program's resource scripts. CMake makes a table of each script (cmake/DialogTemplates.cmake).
#pragma once

#include <windows.h>

#include <vector>

namespace platform
{

struct TemplateItem
{
    const char* className;
    const char* text;
    int id;
    DWORD style;
    int x, y, width, height; // dialog units
};

struct DialogTemplate
{
    int id;
    const char* caption;
    DWORD style;
    int width, height;
    std::vector<TemplateItem> items;
};

// Makes the templates of one script known, for as long as the object lives: that of the program.
class DialogTemplates
{
public:
    explicit DialogTemplates(std::vector<DialogTemplate> templates);

    // Null when no script has the template.
    static const DialogTemplate* Find(int id);
};

} // namespace platform
