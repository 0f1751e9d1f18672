// Names of files as addresses, as editors and tools for reviews exchange them.
#pragma once

#include <string>

namespace lytdlg
{

// A relative reference for a relative name, else the address of the file. Anything but plain letters is written in numbers.
std::string UriOf(const std::string& path);
// The name of the file, in UTF-8; an address of another kind as it is.
std::string PathOfUri(const std::string& uri);

} // namespace lytdlg
