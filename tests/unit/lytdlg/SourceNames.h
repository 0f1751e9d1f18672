// What the sources of the library name, for tables that must have all of it.
#pragma once

#include "lytdlg/text/TextFile.h"

#include <filesystem>
#include <regex>
#include <set>
#include <string>

// What the group of a pattern matches in the sources below a folder of the library.
inline std::set<std::string> NamedInSources(const std::string& folder, const char* pattern)
{
    std::set<std::string> names;
    const std::regex named(pattern);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(LYT_SOURCE_FOLDER "/src" + folder))
    {
        const std::string source = lytdlg::ReadWholeFile(entry.path()).value_or("");
        for (std::sregex_iterator found(source.begin(), source.end(), named), end; found != end; ++found)
            names.insert((*found)[1].str());
    }
    return names;
}
