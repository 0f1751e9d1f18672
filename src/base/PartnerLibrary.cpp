#include "base/PartnerLibrary.h"

#include <FileNameLength.h>

HMODULE lytLoadLibrary(const char* name)
{
    if (*name == '\0' || !FileNameFits(name))
        return nullptr;
    if (HMODULE own = lytOwnLibraries != nullptr ? lytOwnLibraries->Load(name) : nullptr)
        return own;
    const ClytErrorBoxesOff noBoxes;
    return ::LoadLibraryA(name);
}

FARPROC lytFunctionAddress(HMODULE library, const char* name)
{
    const bool isOwn = lytOwnLibraries != nullptr && lytOwnLibraries->Owns(library);
    return isOwn ? lytOwnLibraries->Find(library, name) : ::GetProcAddress(library, name);
}
