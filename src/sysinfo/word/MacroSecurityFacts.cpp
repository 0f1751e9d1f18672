#include "sysinfo/word/MacroSecurity.h"

#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"

namespace
{

constexpr DWORD nameSize = 64;
constexpr DWORD pathSize = 260;

// All subkeys count, under any name; one whose name is too long is skipped.
std::vector<CString> ReadTrustedPaths(const RegistryKey& locations)
{
    std::vector<CString> paths;
    CString name;
    LSTATUS result = ERROR_SUCCESS;
    for (DWORD index = 0; result == ERROR_SUCCESS || result == ERROR_MORE_DATA; ++index)
    {
        result = locations.EnumKey(index, nameSize, name);
        if (result != ERROR_SUCCESS)
            continue;
        CString path;
        RegistryKey(locations.Get(), name).ReadText("Path", pathSize, path);
        paths.push_back(path);
    }
    return paths;
}

} // namespace

MacroSecurityFacts ReadMacroSecurityFacts(int n)
{
    MacroSecurityFacts facts;
    facts.n = n;
    const CString name = MacroSecurityKey(n);
    if (name.IsEmpty())
        return facts;

    const RegistryKey key(HKEY_CURRENT_USER, name);
    facts.isKeyOpen = key.IsOpen();
    if (HasSecurityLevel(n))
        facts.level = key.ReadNumber("Level");
    else
    {
        facts.installDirectory = lytInstallDirectory();
        facts.paths = ReadTrustedPaths(key);
    }
    return facts;
}

CString lytProbeMacroSecurity(int n)
{
    return MacroSecurityText(ReadMacroSecurityFacts(n));
}
