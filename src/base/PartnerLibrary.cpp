#include "base/PartnerLibrary.h"

HMODULE lytLoadLibrary(const char* name)
{
    if (*name == '\0')
        return nullptr;
    const ClytErrorBoxesOff noBoxes;
    return ::LoadLibraryA(name);
}
