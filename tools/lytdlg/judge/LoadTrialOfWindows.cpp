#include "lytdlg/judge/LoadTrial.h"

#include "base/ClytHandle.h"
#include "base/PartnerLibrary.h"
#include "commandline/Program.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

constexpr DWORD virusInfected = 225; // which the headers of the toolchain do not name
constexpr DWORD longestTrial = 30000;
constexpr DWORD firstException = 0xC0000000;

// This program, or the one beside a program that has its commands inside.
fs::path ProgramOfTrials()
{
    return AskedPath([](wchar_t* name, DWORD size) { return ::GetModuleFileNameW(nullptr, name, size); })
        .replace_filename(L"lytdlg.exe");
}

struct ClytProcessKind
{
    using Handle = HANDLE;
    static Handle None() noexcept { return nullptr; }
    static void Close(Handle process) noexcept { ::CloseHandle(process); }
};
using ClytProcessHandle = ClytHandle<ClytProcessKind>;

// Nothing when the program cannot be started.
std::optional<DWORD> ExitCodeOf(const fs::path& program, std::wstring commandLine)
{
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    if (!::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                          nullptr, &start, &started))
        return std::nullopt;
    const ClytProcessHandle process(started.hProcess);
    const ClytProcessHandle thread(started.hThread);
    DWORD code = ERROR_TIMEOUT;
    if (::WaitForSingleObject(process.Get(), longestTrial) != WAIT_OBJECT_0)
        ::TerminateProcess(process.Get(), code);
    else
        ::GetExitCodeProcess(process.Get(), &code);
    return code;
}

// The folders that are named take the place of those that the platform would search; older ones know no such call.
void SearchIn(const fs::path& folder)
{
    using AddFolder = void* WINAPI(PCWSTR);
    auto* const add = lytFindFunction<AddFolder>(::GetModuleHandleW(L"kernel32.dll"), "AddDllDirectory");
    if (add != nullptr)
        add(folder.c_str());
}

} // namespace

std::optional<unsigned long> LoadErrorOf(const fs::path& library, const LoadSurroundings& surroundings)
{
    std::wstring commandLine = L"lytdlg " + fs::path(loadTrialWord).wstring();
    const auto add = [&](const fs::path& word)
    { commandLine += L' ' + commandline::QuotedWord(fs::absolute(word).wstring()); };
    add(library);
    for (const fs::path& folder : surroundings.folders)
        add(folder);
    if (!surroundings.loaded.empty())
        add(surroundings.loaded);
    return ExitCodeOf(ProgramOfTrials(), commandLine);
}

std::string ReasonOfLoadError(unsigned long error)
{
    static constexpr struct
    {
        DWORD error;
        const char* reason;
    } reasons[] = {
        {ERROR_ACCESS_DENIED, "access is denied"},
        {ERROR_SHARING_VIOLATION, "another program has it open"},
        {ERROR_MOD_NOT_FOUND, "a library that it needs is missing"},
        {ERROR_PROC_NOT_FOUND, "a library that it needs lacks a function"},
        {ERROR_BAD_EXE_FORMAT, "the file is damaged"},
        {ERROR_DLL_INIT_FAILED, "its entry point refuses"},
        {ERROR_NOACCESS, "its entry point fails"},
        {ERROR_TIMEOUT, "its entry point does not come back"},
        {virusInfected, "the virus scanner blocks it"},
        {ERROR_ACCESS_DISABLED_BY_POLICY, "a policy of this machine forbids it"},
    };
    const auto* const known = std::ranges::find(reasons, error, [](const auto& each) { return each.error; });
    std::array<char, 32> exception = {};
    std::snprintf(exception.data(), exception.size(), "exception %08lX", error);
    if (error >= firstException)
        return std::string(exception.data()) + ", its entry point fails";
    return "error " + std::to_string(error) + (known != std::end(reasons) ? std::string(", ") + known->reason : "");
}

std::vector<fs::path> PlatformFolders()
{
    return {AskedPath(::GetSystemDirectoryW)};
}

// The words after the first are the library, folders, and libraries that are loaded before it. The process ends without
// telling the library so, which is not what is tried.
int CarryOutLoadTrial(const std::vector<std::string>& words)
{
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    constexpr DWORD search = LOAD_LIBRARY_SEARCH_USER_DIRS | LOAD_LIBRARY_SEARCH_SYSTEM32;
    for (size_t index = 2; index < words.size(); ++index)
    {
        const fs::path word = PathOf(words[index]);
        std::error_code ignored;
        if (fs::is_directory(word, ignored))
            SearchIn(word);
        else
            ::LoadLibraryExW(word.c_str(), nullptr, search);
    }
    const HMODULE library = ::LoadLibraryExW(PathOf(words.at(1)).c_str(), nullptr, search);
    ::TerminateProcess(::GetCurrentProcess(), library != nullptr ? ERROR_SUCCESS : ::GetLastError());
    return 0;
}

} // namespace lytdlg
