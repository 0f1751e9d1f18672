#include "sysinfo/system/KernelVersion.h"

#include "base/PartnerLibrary.h"
#include "sysinfo/frame/FactHandles.h"
#include "sysinfo/frame/Probes.h"

#include <string>
#include <vector>

namespace
{

// English (United States), Unicode: what a file without a translation is taken for.
constexpr unsigned usualTranslation = 0x040904B0;

// The version block of a file.
class VersionBlock
{
public:
    explicit VersionBlock(const CString& fileName)
    {
        DWORD ignored = 0;
        m_data.resize(GetFileVersionInfoSizeA(fileName, &ignored));
        if (!m_data.empty() && !GetFileVersionInfoA(fileName, 0, static_cast<DWORD>(m_data.size()), m_data.data()))
            m_data.clear();
        ReadTranslation();
    }

    bool IsRead() const { return !m_data.empty(); }

    std::optional<CString> Text(const char* name) const
    {
        CString path;
        path.Format(R"(\StringFileInfo\%08x\%s)", m_translation, name);
        UINT length = 0;
        const auto* text = static_cast<const char*>(Query(path, length));
        if (text == nullptr)
            return {};
        return CString(text, static_cast<int>(strnlen(text, length)));
    }

    std::array<int, 4> Numbers() const
    {
        UINT length = 0;
        const auto* fixed = static_cast<const VS_FIXEDFILEINFO*>(Query("\\", length));
        if (fixed == nullptr || length < sizeof *fixed)
            return {};
        return {HIWORD(fixed->dwFileVersionMS), LOWORD(fixed->dwFileVersionMS), HIWORD(fixed->dwFileVersionLS),
                LOWORD(fixed->dwFileVersionLS)};
    }

private:
    const void* Query(const char* name, UINT& length) const
    {
        void* found = nullptr;
        if (m_data.empty() || !VerQueryValueA(m_data.data(), name, &found, &length))
            return nullptr;
        return found;
    }

    void ReadTranslation()
    {
        UINT length = 0;
        const auto* translation = static_cast<const DWORD*>(Query(R"(\VarFileInfo\Translation)", length));
        if (translation != nullptr && length >= sizeof *translation)
            m_translation = LanguageAndCodePage(*translation);
    }

    std::vector<BYTE> m_data;
    unsigned m_translation = usualTranslation;
};

std::optional<CString> KernelPath()
{
    const ClytModuleHandle library(lytLoadLibrary("kernel32.dll"));
    if (!library.IsOpen())
        return {};
    char path[MAX_PATH] = "";
    if (GetModuleFileNameA(library.Get(), path, sizeof path) == 0)
        return {};
    return path;
}

std::optional<CString> LastWriteDate(const CString& fileName)
{
    const ClytFileHandle file(
        CreateFileA(fileName, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    FILETIME written = {};
    FILETIME local = {};
    SYSTEMTIME time = {};
    if (!file.IsOpen() || !GetFileTime(file.Get(), nullptr, nullptr, &written) ||
        !FileTimeToLocalFileTime(&written, &local) || !FileTimeToSystemTime(&local, &time))
        return {};
    return KernelDateText(time.wDay, time.wMonth, time.wYear, time.wHour, time.wMinute);
}

} // namespace

std::optional<KernelVersionFacts> ReadKernelVersionFacts()
{
    const std::optional<CString> path = KernelPath();
    if (!path)
        return {};
    const VersionBlock block(*path);
    const std::optional<CString> productVersion = block.Text("ProductVersion");
    const std::optional<CString> date = LastWriteDate(*path);
    if (!block.IsRead() || !productVersion || !date)
        return {};
    return KernelVersionFacts{*productVersion, block.Text("FileVersion"), block.Numbers(), *path, *date};
}

CString lytProbeKernelVersion()
{
    const std::optional<KernelVersionFacts> facts = ReadKernelVersionFacts();
    return facts ? KernelVersionText(*facts) : CString();
}
