#include "PartnerLibraries.h"

#include "FaultPlan.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <map>
#include <string>

namespace platform
{

namespace
{

struct Library
{
    HMODULE handle = nullptr;
    std::map<std::string, FARPROC> functions;
};

std::map<std::string, Library>& Libraries()
{
    static std::map<std::string, Library> libraries;
    return libraries;
}

// Without the folder: there is one library of a name.
std::string PlainName(const char* library)
{
    std::string name(library);
    name.erase(0, name.find_last_of("\\/") + 1);
    std::ranges::transform(name, name.begin(), [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    return name.ends_with(".dll") ? name.substr(0, name.size() - 4) : name;
}

Library& LibraryOf(const char* name)
{
    static uintptr_t lastHandle = 0x100;
    Library& library = Libraries()[PlainName(name)];
    if (library.handle == nullptr)
        library.handle = reinterpret_cast<HMODULE>(++lastHandle);
    return library;
}

} // namespace

void AddFunctionPointer(const char* library, const char* function, void* pointer)
{
    LibraryOf(library).functions[function] = reinterpret_cast<FARPROC>(pointer);
}

void AddLibrary(const char* library)
{
    LibraryOf(library);
}

void RemoveLibrary(const char* library)
{
    Libraries().erase(PlainName(library));
}

} // namespace platform

HMODULE GetModuleHandleA(LPCSTR name)
{
    return name != nullptr ? LoadLibraryA(name) : nullptr;
}

HMODULE LoadLibraryA(LPCSTR name)
{
    const bool isToFail = platform::IsToFail(platform::FaultKind::Library);
    const platform::PlatformAtWork working;
    const auto found = platform::Libraries().find(platform::PlainName(name));
    if (!isToFail && found != platform::Libraries().end())
        return found->second.handle;
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

// Every function is part of the program; only the handle of a library that is there names the library itself.
BOOL GetModuleHandleExA(DWORD /*flags*/, LPCSTR address, HMODULE* module)
{
    auto* const asked = reinterpret_cast<HMODULE>(const_cast<char*>(address));
    const bool isLibrary =
        std::ranges::any_of(platform::Libraries(), [&](const auto& known) { return known.second.handle == asked; });
    *module = isLibrary ? asked : nullptr;
    return TRUE;
}

FARPROC GetProcAddress(HMODULE library, LPCSTR name)
{
    const platform::PlatformAtWork working;
    for (const auto& [libraryName, known] : platform::Libraries())
    {
        if (known.handle != library)
            continue;
        const auto function = known.functions.find(name);
        return function != known.functions.end() ? function->second : nullptr;
    }
    return nullptr;
}

BOOL FreeLibrary(HMODULE /*library*/)
{
    return TRUE;
}
