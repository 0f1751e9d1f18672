// The dialogs of a case: their descriptions and texts.
#pragma once

#include "support/TestFolder.h"

#include <windows.h>

#include <map>
#include <string>
#include <vector>

class CaseForm
{
public:
    // Takes a line that describes; false when it does not.
    bool Take(const std::string& word, const std::string& operand);
    void Write(const TestFolder& folder) const;
    const std::string& Defines() const { return m_defines; }
    // The window of a control: in the dialog in front, or in the one that it belongs to.
    HWND Window(const std::string& name) const;
    // True when some dialog has a control of that name.
    bool Has(const std::string& name) const;

    // What the window of a dialog shows on its frame; the main one has no name.
    static std::string TitleOf(const std::string& name) { return name.empty() ? "The title" : name; }

private:
    struct Dialog
    {
        std::map<std::string, std::vector<std::string>> sections = {{"output", {"(\"done\")"}}};
        bool hasButtons = true;

        std::vector<std::string> Layout() const;
        std::string Text(const std::string& title) const;
    };

    // The window in a dialog; null when the dialog has no such control.
    HWND Window(HWND dialog, const std::string& name) const;

    std::map<std::string, Dialog> m_dialogs = {{"", {}}};
    std::map<std::string, std::string> m_texts = {{"Title", "The title"}, {"Label", "A label"}, {"LATER", "Later"}};
    std::string m_described; // the dialog that the lines are of
    std::string m_defines;
    bool m_hasTexts = true;
};
