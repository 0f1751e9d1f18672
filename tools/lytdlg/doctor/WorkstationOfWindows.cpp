#include "lytdlg/doctor/Workstation.h"

#include "lytdlg/doctor/Deployment.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>
#include <bcrypt.h>
#include <windows.h>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

// The text of a key's default value; empty without one.
std::wstring RegisteredText(HKEY root, const wchar_t* key)
{
    return AskedPath(
               [&](wchar_t* buffer, DWORD length) -> DWORD
               {
                   constexpr DWORD bytes = sizeof(wchar_t);
                   DWORD size = length * bytes;
                   const LSTATUS failure = RegGetValueW(root, key, nullptr, RRF_RT_REG_SZ, nullptr, buffer, &size);
                   return failure == ERROR_SUCCESS ? size / bytes - 1 : 0;
               })
        .wstring();
}

// An empty piece of PATH names no folder.
void AddFoldersOfPath(std::vector<SearchFolder>& folders)
{
    const std::wstring all =
        AskedPath([](wchar_t* buffer, DWORD size) { return GetEnvironmentVariableW(L"PATH", buffer, size); }).wstring();
    for (size_t start = 0; start < all.size();)
    {
        const size_t end = std::min(all.find(L';', start), all.size());
        if (end > start)
            folders.push_back(SearchFolderOf(all.substr(start, end - start), "a folder of PATH"));
        start = end + 1;
    }
}

} // namespace

Host HostOfWorkstation()
{
    std::wstring registered =
        RegisteredText(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Winword.exe");
    // It may be in quotes.
    std::erase(registered, L'"');
    if (!registered.empty())
        return {registered, true};
    return {AskedPath([](wchar_t* buffer, DWORD size) { return GetModuleFileNameW(nullptr, buffer, size); }), false};
}

std::vector<SearchFolder> SystemSearchFolders()
{
    const fs::path windows = AskedPath(GetWindowsDirectoryW);
    std::vector<SearchFolder> folders = {
        {AskedPath(GetSystemDirectoryW), "the system's folder"},
        {windows / "System", "the older system's folder"},
        {windows, "the folder of Windows"},
        {fs::current_path(), "the current folder", true},
    };
    AddFoldersOfPath(folders);
    return folders;
}

bool IsLocked(const fs::path& file)
{
    constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE opened = CreateFileW(file.c_str(), GENERIC_READ, sharedWithAll, nullptr, OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(opened);
    return false;
}

fs::path RegisteredConfigurationFolder()
{
    return RegisteredText(HKEY_CLASSES_ROOT, L"LYTDOCUMENT\\shell\\open\\IniPath");
}

std::optional<bool> HasFont(const std::string& name)
{
    LOGFONTA wanted = {};
    wanted.lfCharSet = DEFAULT_CHARSET;
    if (name.empty() || name.size() >= sizeof wanted.lfFaceName)
        return false;
    name.copy(static_cast<char*>(wanted.lfFaceName), sizeof wanted.lfFaceName - 1);
    const CClientDC screen(nullptr);
    bool isFound = false;
    const auto note = [](const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM target)
    {
        *reinterpret_cast<bool*>(target) = true;
        return 0;
    };
    EnumFontFamiliesExA(screen.m_hDC, &wanted, note, reinterpret_cast<LPARAM>(&isFound), 0);
    return isFound;
}

std::optional<Sha256> Sha256Of(const std::string& bytes)
{
    Sha256 sum = {};
    std::string kept = bytes;
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    BCRYPT_HASH_HANDLE hash = nullptr;
    bool isDone = BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) >= 0;
    isDone = isDone && BCryptCreateHash(algorithm, &hash, nullptr, 0, nullptr, 0, 0) >= 0;
    isDone =
        isDone && BCryptHashData(hash, reinterpret_cast<PUCHAR>(kept.data()), static_cast<ULONG>(kept.size()), 0) >= 0;
    isDone = isDone && BCryptFinishHash(hash, sum.data(), static_cast<ULONG>(sum.size()), 0) >= 0;
    if (hash != nullptr)
        BCryptDestroyHash(hash);
    if (algorithm != nullptr)
        BCryptCloseAlgorithmProvider(algorithm, 0);
    return isDone ? std::optional(sum) : std::nullopt;
}

} // namespace lytdlg
