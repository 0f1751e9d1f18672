#include "sysinfo/BinaryKind.h"

CString BitsText(const std::optional<unsigned>& binaryKind)
{
    if (!binaryKind)
        return "";
    return *binaryKind == lytBinary64 ? " 64 bit" : " 32 bit";
}
