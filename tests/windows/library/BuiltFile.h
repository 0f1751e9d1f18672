// The files that were built, read from beside the library.
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <windows.h>

inline std::string ReadBuiltFile(const std::string& name)
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(GetModuleHandleA("lyt64.dll"), path, sizeof path);
    const std::string library = path;
    std::ifstream file(library.substr(0, library.find_last_of('\\') + 1) + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
