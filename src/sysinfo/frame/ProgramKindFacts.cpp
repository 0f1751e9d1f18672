#include "sysinfo/frame/ProgramKind.h"

#include "sysinfo/frame/FileSearch.h"
#include "sysinfo/frame/Probes.h"

#include "system/NameLength.h"

static_assert(lytBinary64 == SCS_64BIT_BINARY);

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

std::optional<unsigned> BinaryKindOf(const CString& fileName)
{
    DWORD kind = 0;
    if (!NameFits(fileName) || !GetBinaryTypeA(fileName, &kind))
        return {};
    return kind;
}

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
