#include "sysinfo/Probes.h"

#include <string>

namespace
{

constexpr size_t textLength = 399;

using GetVersionText = void(char* text);

GetVersionText* FindVersionFunction(HMODULE library)
{
    FARPROC function = GetProcAddress(library, "getLYTVersion");
    if (function == nullptr)
        function = GetProcAddress(library, "getVersion");
    return reinterpret_cast<GetVersionText*>(reinterpret_cast<void*>(function));
}

} // namespace

// Blanks stand for the version of a library that is missing or does not tell it.
CString lytProbeResolveVersion()
{
    std::string text(textLength, ' ');
    const HMODULE library = LoadLibraryA("LytRes64.dll");
    if (library != nullptr)
    {
        if (GetVersionText* const getVersion = FindVersionFunction(library))
            getVersion(text.data());
        FreeLibrary(library);
    }
    return text.c_str();
}
