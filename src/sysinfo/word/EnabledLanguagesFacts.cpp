#include "sysinfo/word/EnabledLanguages.h"

#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/frame/Report.h"

namespace
{

constexpr DWORD valueSize = 64;

}

std::vector<RegistryValue> ReadEnabledLanguages(int n)
{
    const RegistryKey key(HKEY_CURRENT_USER, EnabledLanguagesKey(n), KEY_ALL_ACCESS);
    std::vector<RegistryValue> values;
    RegistryValue value;
    const DWORD count = key.CountValues();
    for (DWORD index = 0; index < count && key.EnumValue(index, valueSize, value) == ERROR_SUCCESS; ++index)
        values.push_back(value);
    return values;
}

void lytProbeEnabledLanguages()
{
    const int n = VersionNumberOf(lytProbeWordCurrent());
    if (n <= 0)
        return;
    for (const RegistryValue& value : ReadEnabledLanguages(n))
        AddReportLine(EnabledLanguageLine(n, value));
}
