// What the report on a workstation, and its dump of registry keys, cost beyond the platform's own calls.
#include "lyt64.h"

#include "windows/Works.h"

#include "environment/ClytEnvironment.h"
#include "support/Library.h"
#include "support/TestFolder.h"
#include "sysinfo/frame/Probes.h"
#include "windows/PlainCalls.h"

namespace
{

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

void WalkPlain(const std::string& key)
{
    static char name[400];
    static BYTE data[400];
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

} // namespace

void MeasureReport(const BenchMeter& meter)
{
    const TestFolder folder;
    const std::string iniFile = folder.Write("lyt.ini", "[FONTS]\r\nText=Tahoma,Arial\r\nCode=Courier New\r\n");
    static const wchar_t* const fonts[] = {L"Tahoma", L"Arial", L"Courier New", nullptr};
    for (int file = 0; file < meter.Size(); ++file)
        folder.Write("examined\\file" + std::to_string(file) + ".txt", "x");
    const std::string examined = folder.File("examined");
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("bench.rtf", "", folder.Path().c_str());
    auto* const gather = Call<decltype(lytSystemInfoInit)>("lytSystemInfoInit");
    meter.Compare({
        {"ours", [&] { gather(examined.c_str()); }},
        {"by hand", [&] { MakePlainCalls(examined.c_str(), iniFile.c_str(), fonts); }},
    });
}

void MeasureRegistry(const BenchMeter& meter)
{
    MakeKeys(meter.Size());
    meter.Compare({
        {"ours", [] { lytDumpRegistry(root.c_str(), HKEY_CURRENT_USER); },
         [] { lytEnvironment.lytReportLines.RemoveAll(); }},
        {"by hand", [] { WalkPlain(root); }},
    });
    RegDeleteTreeA(HKEY_CURRENT_USER, root.c_str());
}
