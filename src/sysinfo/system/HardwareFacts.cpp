#include "sysinfo/frame/FactHandles.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/frame/Report.h"
#include "sysinfo/system/Hardware.h"

namespace
{

constexpr const char* kernelLibrary = "Kernel32.dll";
constexpr DWORD nameSize = 256;

// A 32-bit process on a 64-bit system sees the real machine only through the native call.
SYSTEM_INFO ReadSystemInfo()
{
    SYSTEM_INFO system = {};
    BOOL isWow64 = FALSE;
    auto* const isWow64Process = FindSystemFunction<BOOL WINAPI(HANDLE, BOOL*)>(kernelLibrary, "IsWow64Process");
    auto* const getNativeInfo = FindSystemFunction<void WINAPI(SYSTEM_INFO*)>(kernelLibrary, "GetNativeSystemInfo");
    if (isWow64Process != nullptr && isWow64Process(GetCurrentProcess(), &isWow64) && isWow64 == 1 &&
        getNativeInfo != nullptr)
        getNativeInfo(&system);
    if (system.dwNumberOfProcessors == 0)
        GetSystemInfo(&system);
    return system;
}

void ReadMemory(HardwareFacts& facts)
{
    MEMORYSTATUSEX memory = {};
    memory.dwLength = sizeof memory;
    if (!GlobalMemoryStatusEx(&memory))
        return;
    facts.memoryLoad = memory.dwMemoryLoad;
    facts.totalPhysical = memory.ullTotalPhys;
    facts.freePhysical = memory.ullAvailPhys;
    facts.totalPagingFile = memory.ullTotalPageFile;
    facts.freePagingFile = memory.ullAvailPageFile;
    facts.totalVirtual = memory.ullTotalVirtual;
    facts.freeVirtual = memory.ullAvailVirtual;
}

void ReadProcessor(HardwareFacts& facts)
{
    const RegistryKey key(HKEY_LOCAL_MACHINE, "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0");
    if (!key.IsOpen())
        return;
    facts.processorSpeed = key.ReadNumber("~MHz");
    key.ReadText("ProcessorNameString", nameSize, facts.processorName);
}

void ReadDisks(HardwareFacts& facts)
{
    char windowsDirectory[MAX_PATH] = "";
    GetWindowsDirectoryA(windowsDirectory, MAX_PATH);
    for (const CString& root : DiskRoots(windowsDirectory, lytInstallDirectory()))
    {
        ULARGE_INTEGER freeToCaller = {};
        ULARGE_INTEGER total = {};
        if (GetDiskFreeSpaceExA(root, &freeToCaller, &total, nullptr))
            facts.disks.push_back({root, total.QuadPart, freeToCaller.QuadPart});
    }
}

} // namespace

HardwareFacts ReadHardwareFacts()
{
    HardwareFacts facts;
    const SYSTEM_INFO system = ReadSystemInfo();
    facts.processors = system.dwNumberOfProcessors;
    facts.pageSize = system.dwPageSize;
    facts.granularity = system.dwAllocationGranularity;
    ReadMemory(facts);
    ReadProcessor(facts);
    ReadDisks(facts);
    return facts;
}

void lytProbeHardware()
{
    AddReportLine(lytProbeWindowsName());
    CStringList lines;
    AddHardwareLines(ReadHardwareFacts(), lines);
    AddReportLines(lines);
}

CString lytProbeScreen()
{
    return ScreenLine(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
}
