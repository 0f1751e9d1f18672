#include "base/ClytHandle.h"
#include "base/ClytPartnerFunction.h"
#include "sysinfo/frame/Probes.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr size_t textSize = 400;

constexpr const char* libraryName = "LytRes64.dll";

using GetVersionText = ClytPartnerFunction<void(char* text)>;

GetVersionText FindVersionFunction(HMODULE library)
{
    const GetVersionText own(library, libraryName, "getLYTVersion");
    return own ? own : GetVersionText(library, libraryName, "getVersion");
}

using VersionText = char[textSize];

void End(VersionText& text)
{
    text[textSize - 1] = '\0';
}

void Clear(VersionText& text)
{
    std::fill(std::begin(text), std::end(text), ' ');
    End(text);
}

void Ask(const GetVersionText& getVersion, VersionText& text)
{
    try
    {
        getVersion(text);
    }
    catch (...)
    {
        Clear(text);
    }
}

} // namespace

// Blanks are the version of a library that is missing or does not report it.
CString lytProbeResolveVersion()
{
    VersionText text;
    Clear(text);
    const ClytModuleHandle library(lytLoadLibrary(libraryName));
    if (library.IsOpen())
        if (const GetVersionText getVersion = FindVersionFunction(library.Get()))
            Ask(getVersion, text);
    // The library may have written over the end.
    End(text);
    return text;
}
