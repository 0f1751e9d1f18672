#include "sysinfo/frame/ProgramKind.h"

CString BitsText(const std::optional<unsigned>& binaryKind)
{
    if (!binaryKind)
        return "";
    return *binaryKind == lytBinary64 ? " 64 bit" : " 32 bit";
}

bool TellsItsKind(const CString& hostFile)
{
    return hostFile.Find("lytinfo") > 0;
}

CString ProgramKindText(const ProgramKindFacts& facts)
{
    return (facts.hasServer ? "LYT Server" : "LYT Front-End") + BitsText(facts.binaryKind);
}
