#include "sysinfo/ProgramKind.h"

#include "sysinfo/BinaryKind.h"
#include "sysinfo/FileSearch.h"
#include "sysinfo/Probes.h"

namespace
{

constexpr int readAccess = 4;
constexpr DWORD pathSize = 260;

CString HostFile()
{
    char name[pathSize] = "";
    GetModuleFileNameA(nullptr, name, pathSize);
    return CString(name, static_cast<int>(strnlen(name, pathSize))).MakeLower();
}

} // namespace

CString lytProgramKind()
{
    const CString host = HostFile();
    if (!TellsItsKind(host))
        return "";
    const CString server = lytInstallDirectory() + "lytRfcSv.exe";
    ProgramKindFacts facts;
    facts.hasServer = lytAccessError(server, readAccess) == 0;
    facts.binaryKind = BinaryKindOf(facts.hasServer ? server : host);
    return ProgramKindText(facts);
}
