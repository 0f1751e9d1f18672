// Which language texts a dialog asks for, and which the library asks for by itself.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lytdlg
{

struct TextUse
{
    std::string section;
    std::string key;
    bool isCaption = false; // shown up to its first apostrophe
    std::string file;       // of the dialog, without its folder; empty for the library itself
    int line = 0;           // in the dialog
};

// What the dialog asks for under any choice of its defines, in the order of its lines. Lines that the library refuses ask
// for nothing. Throws as OpenDescription does.
std::vector<TextUse> TextsOfDialog(const std::filesystem::path& fileName);

// Buttons, the window of the catalogue and the numbered messages.
std::vector<TextUse> TextsOfLibrary();

} // namespace lytdlg
