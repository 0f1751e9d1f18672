#include "sysinfo/Probes.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr size_t textSize = 400;

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
    char text[textSize];
    std::fill(std::begin(text), std::end(text), ' ');
    text[textSize - 1] = '\0';
    const HMODULE library = LoadLibraryA("LytRes64.dll");
    if (library != nullptr)
    {
        if (GetVersionText* const getVersion = FindVersionFunction(library))
            getVersion(text);
        FreeLibrary(library);
    }
    // The library need not have left an end.
    text[textSize - 1] = '\0';
    return text;
}
