// The work of a dialog by hand: what a program does that knows the windows and texts of this one dialog, over windows in
// memory.
#pragma once

#include "liveform/LiveForm.h"

#include <string>
#include <utility>
#include <vector>

using Entries = std::vector<std::pair<const char*, const char*>>;

class FormByHand
{
public:
    // Knows what the form shows once it is constructed; texts and language are in the folders of the environment.
    FormByHand(const LiveForm& form, const char* description, Entries entries);

    // Reads the description and each text, makes the windows and fills them, enters the entries, reads everything that the
    // windows hold, and destroys them.
    void Work() const;

private:
    struct Child
    {
        std::string windowClass;
        std::string text;
        DWORD style;
        DWORD extendedStyle;
        RECT place;
        std::vector<std::string> items;
    };

    void ReadFiles() const;
    std::vector<HWND> MakeWindows(HWND dialog) const;

    std::string m_description;
    std::string m_section;
    std::vector<std::string> m_textKeys;
    std::vector<Child> m_children;
    std::vector<std::pair<size_t, std::string>> m_typed; // into which child
};
