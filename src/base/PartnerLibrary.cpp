#include "base/PartnerLibrary.h"

#include <FileNameLength.h>

HMODULE lytLoadLibrary(const char* name)
{
    if (*name == '\0' || !FileNameFits(name))
        return nullptr;
    const ClytErrorBoxesOff noBoxes;
    return ::LoadLibraryA(name);
}
