#include "base/PartnerLibrary.h"

#include "system/NameLength.h"

namespace
{

bool IsOwn(HMODULE library)
{
    return lytOwnLibraries != nullptr && lytOwnLibraries->Owns(library);
}

} // namespace

HMODULE lytLoadLibrary(const char* name)
{
    if (*name == '\0' || !NameFits(name))
        return nullptr;
    if (HMODULE own = lytOwnLibraries != nullptr ? lytOwnLibraries->Load(name) : nullptr)
        return own;
    const ClytErrorBoxesOff noBoxes;
    return ::LoadLibraryA(name);
}

bool lytIsLoaded(HMODULE library)
{
    if (IsOwn(library))
        return true;
    // A library's handle is the address at which it is loaded.
    constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE found = nullptr;
    return ::GetModuleHandleExA(flags, reinterpret_cast<LPCSTR>(library), &found) && found == library;
}

FARPROC lytFunctionAddress(HMODULE library, const char* name)
{
    return IsOwn(library) ? lytOwnLibraries->Find(library, name) : ::GetProcAddress(library, name);
}
