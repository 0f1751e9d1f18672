#include "sysinfo/Probes.h"

#include "environment/PartnerLibrary.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr size_t textSize = 400;

using GetVersionText = void(char* text);

GetVersionText* FindVersionFunction(HMODULE library)
{
    auto* const own = lytFindFunction<GetVersionText>(library, "getLYTVersion");
    return own != nullptr ? own : lytFindFunction<GetVersionText>(library, "getVersion");
}

} // namespace

// Blanks stand for the version of a library that is missing or does not tell it.
CString lytProbeResolveVersion()
{
    char text[textSize];
    std::fill(std::begin(text), std::end(text), ' ');
    text[textSize - 1] = '\0';
    const HMODULE library = lytLoadLibrary("LytRes64.dll");
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
