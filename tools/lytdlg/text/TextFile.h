// Files that are read and written whole, byte for byte.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// Nothing for a file that cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& name);

// The files of a folder with an extension, in the order of their names. Case does not count, and a folder that is not there
// has none.
std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder, const std::string& extension);

} // namespace lytdlg
