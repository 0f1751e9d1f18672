#include "lytdlg/doctor/Workstation.h"

#include "lytdlg/text/AskedPath.h"

#include <algorithm>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

fs::path RegisteredWordProcessor()
{
    std::wstring program =
        AskedPath(
            [](wchar_t* buffer, DWORD length) -> DWORD
            {
                constexpr DWORD bytes = sizeof(wchar_t);
                DWORD size = length * bytes;
                const LSTATUS failure = RegGetValueW(
                    HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Winword.exe",
                    nullptr, RRF_RT_REG_SZ, nullptr, buffer, &size);
                return failure == ERROR_SUCCESS ? size / bytes - 1 : 0;
            })
            .wstring();
    // Quotes may stand round it.
    std::erase(program, L'"');
    return program;
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
            folders.push_back({all.substr(start, end - start), "a folder of PATH"});
        start = end + 1;
    }
}

} // namespace

Host HostOfWorkstation()
{
    const fs::path registered = RegisteredWordProcessor();
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

} // namespace lytdlg
