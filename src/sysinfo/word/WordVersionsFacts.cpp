#include "sysinfo/word/WordVersions.h"

#include "environment/ClytEnvironment.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"

namespace
{

// Room for a version's name. A longer name ends the enumeration, so that what follows it is not listed.
constexpr DWORD nameSize = 10;

std::vector<CString> SubkeysOf(const char* key)
{
    return RegistryKey(HKEY_LOCAL_MACHINE, key).SubkeyNames(nameSize);
}

} // namespace

WordVersionsFacts ReadWordVersionsFacts()
{
    return {SubkeysOf("Software\\Microsoft\\Word"), SubkeysOf("Software\\Microsoft\\Office")};
}

CString lytProbeWordVersions()
{
    lytEnvironment.lytWordVersions = WordVersionsText(ReadWordVersionsFacts());
    return lytEnvironment.lytWordVersions;
}
