#include "support/Modules.h"

#include <algorithm>
#include <cctype>
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

std::string FileNameOf(const std::string& path)
{
    return path.substr(path.rfind('\\') + 1);
}
