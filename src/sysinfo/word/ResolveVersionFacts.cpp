#include "base/ClytHandle.h"
#include "base/PartnerLibrary.h"
#include "sysinfo/frame/Probes.h"

#include <GuardedCall.h>
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

// What the library raises ends here: it is made of the library's code, and cannot outlive the library.
void Ask(GetVersionText& getVersion, VersionText& text)
{
    try
    {
        GuardedCall([&] { getVersion(text); });
    }
    catch (...)
    {
        Clear(text);
    }
}

} // namespace

// Blanks stand for the version of a library that is missing or does not report it.
CString lytProbeResolveVersion()
{
    VersionText text;
    Clear(text);
    const ClytModuleHandle library(lytLoadLibrary("LytRes64.dll"));
    if (library.IsOpen())
        if (GetVersionText* const getVersion = FindVersionFunction(library.Get()))
            Ask(*getVersion, text);
    // The library may have written over the end.
    End(text);
    return text;
}
