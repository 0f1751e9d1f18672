// Names of files, which the commands have in UTF-8 and the library in its code page.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lytdlg
{

// The path of a name. The standard library would take it for one in another code page.
inline std::filesystem::path PathOf(const std::string& name)
{
    return std::u8string(name.begin(), name.end());
}

// The words of the command line after the program's name, given what `main` is given.
std::vector<std::string> CommandLineWords(int count, char** words);

// A file of a folder, by its name in UTF-8; empty when there is none. Case does not count.
std::filesystem::path FileIn(const std::filesystem::path& folder, const std::string& name);

// The name as the library opens it. A UsageError when it holds a letter that the library's code page does not have.
std::string NameForLibrary(const std::filesystem::path& path);

} // namespace lytdlg
