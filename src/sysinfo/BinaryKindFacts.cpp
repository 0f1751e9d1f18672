#include "sysinfo/BinaryKind.h"

#include <FileNameLength.h>
#include <windows.h>

static_assert(lytBinary64 == SCS_64BIT_BINARY);

std::optional<unsigned> BinaryKindOf(const CString& fileName)
{
    DWORD kind = 0;
    if (!FileNameFits(fileName) || !GetBinaryTypeA(fileName, &kind))
        return {};
    return kind;
}
