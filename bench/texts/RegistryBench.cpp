#include "Measurements.h"

#include "environment/ClytEnvironment.h"
#include "sysinfo/frame/Probes.h"

#include "Timing.h"

#include <cstdio>
#include <string>

namespace
{

constexpr int rounds = 9;
const std::string root = "Software\\lyt64-bench";

void MakeKey(const std::string& key)
{
    HKEY made = nullptr;
    RegCreateKeyA(HKEY_CURRENT_USER, key.c_str(), &made);
    RegSetValueExA(made, "name", 0, REG_SZ, reinterpret_cast<const BYTE*>("value"), 6);
    const DWORD number = 42;
    RegSetValueExA(made, "number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
    RegCloseKey(made);
}

// Keys with two values each, a hundred to a group.
void MakeKeys(int count)
{
    RegDeleteTreeA(HKEY_CURRENT_USER, root.c_str());
    MakeKey(root);
    for (int i = 1; i < count; ++i)
        MakeKey(root + "\\group" + std::to_string(i / 100) + "\\key" + std::to_string(i));
}

char name[400];
BYTE data[400];

void WalkPlain(const std::string& key)
{
    HKEY opened = nullptr;
    if (RegOpenKeyA(HKEY_CURRENT_USER, key.c_str(), &opened) != ERROR_SUCCESS)
        return;
    DWORD nameSize = sizeof name;
    DWORD dataSize = sizeof data;
    DWORD type = 0;
    for (DWORD i = 0; RegEnumValueA(opened, i, name, &nameSize, nullptr, &type, data, &dataSize) == ERROR_SUCCESS; ++i)
        nameSize = dataSize = sizeof name;
    for (DWORD i = 0; RegEnumKeyA(opened, i, name, sizeof name) == ERROR_SUCCESS; ++i)
        WalkPlain(key + "\\" + name);
    RegCloseKey(opened);
}

void MeasureTree(int keys)
{
    MakeKeys(keys);
    std::vector<double> dump;
    std::vector<double> plain;
    for (int round = 0; round < rounds; ++round)
    {
        lytEnvironment.lytReportLines.RemoveAll();
        dump.push_back(TimeOf([] { lytDumpRegistry(root.c_str(), HKEY_CURRENT_USER); }));
        plain.push_back(TimeOf([] { WalkPlain(root); }));
    }
    std::printf("registry tree of %5d keys  %8.2f ms, %6.2f us a key; plain walk %8.2f ms, ratio %.2f\n", keys,
                Median(dump), 1000.0 * Median(dump) / keys, Median(plain), Median(dump) / Median(plain));
}

} // namespace

void MeasureRegistryDump()
{
    for (const int keys : {50, 500, 5000})
        MeasureTree(keys);
    RegDeleteTreeA(HKEY_CURRENT_USER, root.c_str());
}
