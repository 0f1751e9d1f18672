#include "sysinfo/ProgramKind.h"

#include "sysinfo/BinaryKind.h"

bool TellsItsKind(const CString& hostFile)
{
    return hostFile.Find("lytinfo") > 0;
}

CString ProgramKindText(const ProgramKindFacts& facts)
{
    return (facts.hasServer ? "LYT Server" : "LYT Front-End") + BitsText(facts.binaryKind);
}
