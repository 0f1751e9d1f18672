#include "sysinfo/word/WordCurrent.h"

#include "environment/ClytEnvironment.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/ProgramKind.h"
#include "sysinfo/frame/RegistryKey.h"

namespace
{

constexpr DWORD valueSize = 400;
constexpr LONG pathSize = 260;

std::optional<CString> ReadProgram()
{
    const RegistryKey key(HKEY_CLASSES_ROOT, "Word.Application\\CurVer");
    RegistryValue first;
    if (key.EnumValue(0, valueSize, first) != ERROR_SUCCESS)
        return {};
    return TextOf(first);
}

std::optional<unsigned> ReadBinaryKind()
{
    const RegistryKey key(HKEY_LOCAL_MACHINE, R"(SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\Winword.exe)");
    CString path;
    if (!key.ReadSubkey(nullptr, pathSize, path))
        return {};
    return BinaryKindOf(path);
}

} // namespace

WordCurrentFacts ReadWordCurrentFacts()
{
    WordCurrentFacts facts;
    facts.program = ReadProgram();
    if (facts.program && HasBits(WordVersionOf(*facts.program)))
        facts.binaryKind = ReadBinaryKind();
    return facts;
}

CString lytProbeWordCurrent()
{
    lytEnvironment.lytWordCurrent = WordCurrentText(ReadWordCurrentFacts());
    return lytEnvironment.lytWordCurrent;
}
