// The texts of language files that the library asks for by itself.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

struct LibraryText
{
    std::string section;
    std::string key;
};

// Buttons, the window of the catalogue and the numbered messages.
const std::vector<LibraryText>& LibraryTexts();

} // namespace lytdlg
