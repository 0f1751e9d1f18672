#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"

namespace
{

constexpr DWORD textSize = 64;

}

ClickToRunFacts lytProbeClickToRun()
{
    ClickToRunFacts facts;
    const RegistryKey key(HKEY_LOCAL_MACHINE, R"(SOFTWARE\Microsoft\Office\ClickToRun\Configuration)",
                          KEY_QUERY_VALUE | KEY_WOW64_64KEY);
    key.ReadWholeText("VersionToReport", textSize, facts.version);
    key.ReadWholeText("ProductReleaseIDs", textSize, facts.releaseIds);
    facts.isSubscription = facts.releaseIds.Find("O365") >= 0;
    return facts;
}
