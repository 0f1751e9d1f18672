#include "lytdlg/doctor/Workstation.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

constexpr DWORD longestPath = 32768;

std::wstring WithoutQuotes(std::wstring text)
{
    std::erase(text, L'"');
    return text;
}

// What a function of the platform writes into a buffer, without the quotes that may stand round a path; empty when it fails.
template <class Ask>
fs::path AskedPath(Ask ask)
{
    std::wstring path(longestPath, L'\0');
    path.resize(std::min<size_t>(ask(path.data(), longestPath), longestPath));
    return WithoutQuotes(path);
}

fs::path RegisteredWordProcessor()
{
    return AskedPath(
        [](wchar_t* buffer, DWORD length) -> DWORD
        {
            constexpr DWORD bytes = sizeof(wchar_t);
            DWORD size = length * bytes;
            const LSTATUS failure = RegGetValueW(
                HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Winword.exe", nullptr,
                RRF_RT_REG_SZ, nullptr, buffer, &size);
            return failure == ERROR_SUCCESS ? size / bytes - 1 : 0;
        });
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

// The file system itself takes no account of case.
fs::path FileIn(const fs::path& folder, const std::string& name)
{
    fs::path file = folder / fs::path(std::u8string(name.begin(), name.end()));
    std::error_code ignored;
    return fs::is_regular_file(file, ignored) ? file : fs::path();
}

} // namespace lytdlg
