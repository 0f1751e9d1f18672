#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/frame/ReportFrame.h"
#include "sysinfo/word/WordDirectories.h"

namespace
{

constexpr DWORD pathSize = 400;

// A value that is missing reads as an empty text.
CString ReadDirectory(const RegistryPlace& place)
{
    const RegistryKey key(HKEY_CURRENT_USER, place.key);
    if (!key.IsOpen())
        return CannotOpenText(place.key);
    CString directory;
    if (place.kind == RegistryPlace::Kind::Subkey)
        key.ReadSubkey(place.name, pathSize, directory);
    else
        key.ReadText(place.name, pathSize, directory);
    return directory;
}

CString ReadDirectoryOrWords(const std::optional<RegistryPlace>& place)
{
    return place ? ReadDirectory(*place) : UnsupportedVersionText();
}

} // namespace

// The one probe of the three that has no words for a version without the directory.
CString lytProbeUserTemplates(int n)
{
    const std::optional<RegistryPlace> place = UserTemplatesPlace(n);
    return place ? ReadDirectory(*place) : CString();
}

CString lytProbeWorkgroupTemplates(int n)
{
    return ReadDirectoryOrWords(WorkgroupTemplatesPlace(n));
}

CString lytProbeStartup(int n)
{
    return ReadDirectoryOrWords(StartupPlace(n));
}
