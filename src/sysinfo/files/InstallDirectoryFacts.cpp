#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/frame/ReportFrame.h"

namespace
{

constexpr DWORD pathSize = 260;

CString CurrentDirectory()
{
    char path[pathSize] = "";
    GetCurrentDirectoryA(pathSize, path);
    return path;
}

} // namespace

CString lytInstallDirectory()
{
    const RegistryKey key(HKEY_CLASSES_ROOT, R"(LYTDOCUMENT\InstallDir)");
    CString directory;
    if (!key.ReadText(nullptr, pathSize, directory))
        directory = CurrentDirectory();
    return WithSeparator(directory);
}
