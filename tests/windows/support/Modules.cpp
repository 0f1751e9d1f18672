#include "support/Modules.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

#include <windows.h>

#include <psapi.h>

std::string InLowerCase(std::string text)
{
    std::ranges::transform(text, text.begin(), [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    return text;
}

std::set<std::string> LoadedModules()
{
    DWORD needed = 0;
    EnumProcessModules(GetCurrentProcess(), nullptr, 0, &needed);
    std::vector<HMODULE> modules(needed / sizeof(HMODULE));
    EnumProcessModules(GetCurrentProcess(), modules.data(), needed, &needed);
    std::set<std::string> paths;
    for (HMODULE module : modules)
    {
        char path[MAX_PATH] = "";
        GetModuleFileNameA(module, path, sizeof path);
        paths.insert(InLowerCase(path));
    }
    return paths;
}

std::string LibraryOfAnotherMachine(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    LONG header = 0;
    std::memcpy(&header, bytes.data() + offsetof(IMAGE_DOS_HEADER, e_lfanew), sizeof header);
    const WORD machine = IMAGE_FILE_MACHINE_I386;
    std::memcpy(bytes.data() + header + offsetof(IMAGE_NT_HEADERS, FileHeader.Machine), &machine, sizeof machine);
    return bytes;
}

std::string FileNameOf(const std::string& path)
{
    return path.substr(path.rfind('\\') + 1);
}
