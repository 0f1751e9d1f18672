#include "sysinfo/frame/RegistryDump.h"

#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/frame/Report.h"

static_assert(registryText == REG_SZ && registryExpandableText == REG_EXPAND_SZ && registryBinary == REG_BINARY &&
              registryNumber == REG_DWORD);

namespace
{

constexpr DWORD bufferSize = 400;

// A value that cannot be read, or does not fit the buffer, ends the key's values.
void AddValues(const CString& name, const RegistryKey& key)
{
    RegistryValue value;
    DWORD index = 0;
    for (; key.EnumValue(index, bufferSize, value) == ERROR_SUCCESS; ++index)
        AddReportLine(ValueLine(name, value));
    if (index == 0)
        AddReportLine(EmptyKeyLine(name));
}

} // namespace

void lytDumpRegistry(const char* key, HKEY root)
{
    const CString name = key;
    const RegistryKey opened(root, name);
    if (!opened.IsOpen())
    {
        AddReportLine(MissingKeyLine(name));
        return;
    }
    AddValues(name, opened);
    for (const CString& subkey : opened.SubkeyNames(bufferSize))
        lytDumpRegistry(name + "\\" + subkey, root);
}
