#include "sysinfo/frame/FactHandles.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/system/WindowsName.h"

namespace
{

constexpr const char* kernelLibrary = "kernel32.dll";
constexpr DWORD nameSize = 128;

void ReadVersion(WindowsFacts& facts)
{
    OSVERSIONINFOEXA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    auto* const getVersion = FindSystemFunction<BOOL WINAPI(OSVERSIONINFOEXA*)>(kernelLibrary, "GetVersionExA");
    if (getVersion == nullptr || !getVersion(&version))
        return;

    facts.platform = version.dwPlatformId;
    facts.major = version.dwMajorVersion;
    facts.minor = version.dwMinorVersion;
    facts.build = version.dwBuildNumber;
    facts.productType = version.wProductType;
    facts.suite = version.wSuiteMask;
    facts.servicePack = version.szCSDVersion;
}

unsigned ReadArchitecture()
{
    SYSTEM_INFO system = {};
    auto* const getNativeInfo = FindSystemFunction<void WINAPI(SYSTEM_INFO*)>(kernelLibrary, "GetNativeSystemInfo");
    if (getNativeInfo != nullptr)
        getNativeInfo(&system);
    else
        GetSystemInfo(&system);
    return system.wProcessorArchitecture;
}

// The result of the call is ignored: a number that came back names the edition.
unsigned ReadEdition(const WindowsFacts& facts)
{
    DWORD edition = 0;
    auto* const getProduct =
        FindSystemFunction<BOOL WINAPI(DWORD, DWORD, DWORD, DWORD, DWORD*)>(kernelLibrary, "GetProductInfo");
    if (getProduct != nullptr)
        getProduct(facts.major, facts.minor, 0, 0, &edition);
    return edition;
}

void ReadRegistryName(WindowsFacts& facts)
{
    const RegistryKey key(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", KEY_READ);
    if (!key.IsOpen())
        return;
    CString name;
    if (key.ReadText("ProductName", nameSize, name))
        facts.registryName = name;
    key.ReadText("ReleaseId", nameSize, facts.releaseId);
}

} // namespace

WindowsFacts ReadWindowsFacts()
{
    WindowsFacts facts;
    ReadVersion(facts);
    facts.architecture = ReadArchitecture();
    facts.isServerR2 = GetSystemMetrics(SM_SERVERR2) != 0;
    if (facts.major == 10)
        ReadRegistryName(facts);
    facts.edition = ReadEdition(facts);
    facts.kernelVersion = lytProbeKernelVersion();
    return facts;
}

CString lytProbeWindowsName()
{
    return WindowsNameLine(ReadWindowsFacts());
}
