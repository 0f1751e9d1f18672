// All that is in a folder: the paths, and the bytes of the files.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

// As they are on the disk, whatever an editor has open.
inline std::map<std::string, std::string> ContentsOf(const std::filesystem::path& folder)
{
    std::map<std::string, std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    {
        std::string& content = found[entry.path().string()];
        std::ifstream file(entry.path(), std::ios::binary);
        if (entry.is_regular_file())
            content.assign(std::istreambuf_iterator<char>(file), {});
    }
    return found;
}
