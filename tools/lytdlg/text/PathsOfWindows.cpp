#include "commandline/CommandLine.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <memory>

namespace lytdlg
{

namespace
{

struct FreeLocal
{
    void operator()(HLOCAL memory) const { LocalFree(memory); }
};

// The text in a code page; empty when the page lacks one of its letters.
std::string TextIn(UINT codePage, const std::wstring& wide)
{
    const int length = static_cast<int>(wide.size());
    // In UTF-8 nothing can be lacking, and must not be asked for.
    const bool isUtf8 = codePage == CP_UTF8;
    const DWORD flags = isUtf8 ? 0 : WC_NO_BEST_FIT_CHARS;
    BOOL isLacking = FALSE;
    BOOL* lacking = isUtf8 ? nullptr : &isLacking;
    const int size = WideCharToMultiByte(codePage, flags, wide.data(), length, nullptr, 0, nullptr, lacking);
    std::string text(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(codePage, flags, wide.data(), length, text.data(), size, nullptr, lacking);
    return isLacking != FALSE ? "" : text;
}

} // namespace

// What `main` is given has lost the letters that are not in the code page.
std::vector<std::string> CommandLineWords(int /*count*/, char** /*words*/)
{
    int count = 0;
    const std::unique_ptr<LPWSTR, FreeLocal> words(CommandLineToArgvW(GetCommandLineW(), &count));
    std::vector<std::string> texts;
    for (int index = 1; index < count; ++index)
        texts.push_back(TextIn(CP_UTF8, words.get()[index]));
    return texts;
}

// The file system itself takes no account of case.
std::filesystem::path FileIn(const std::filesystem::path& folder, const std::string& name)
{
    std::filesystem::path file = folder / PathOf(name);
    std::error_code ignored;
    return std::filesystem::is_regular_file(file, ignored) ? file : std::filesystem::path();
}

std::string NameForLibrary(const std::filesystem::path& path)
{
    std::string name = TextIn(GetACP(), path.wstring());
    if (name.empty() && !path.empty())
        throw commandline::UsageError(
            "the library cannot open \"" + path.string() +
            "\": its code page lacks a letter of the name; rename the file or folder, or copy "
            "the dialogs to a folder with plain letters");
    return name;
}

std::filesystem::path AskedPath(const std::function<unsigned long(wchar_t*, unsigned long)>& ask)
{
    constexpr DWORD longest = 32768;
    std::wstring path(longest, L'\0');
    path.resize(std::min<size_t>(ask(path.data(), longest), longest));
    return path;
}

FileForLibrary::FileForLibrary(const std::string& content)
{
    auto file = std::make_shared<const TemporaryFile>(content);
    m_name = file->Name();
    m_file = std::move(file);
}

FolderForLibrary::FolderForLibrary()
{
    static int count = 0;
    const std::string number = std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
    m_name = std::filesystem::temp_directory_path() / ("lytdlg-texts-" + number);
    const auto remove = [folder = m_name](const void*)
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    };
    m_files.emplace_back(nullptr, remove);
}

void FolderForLibrary::Put(const std::filesystem::path& name, const std::string& content)
{
    std::filesystem::create_directories((m_name / name).parent_path());
    WriteWholeFile(m_name / name, content);
}

// A folder itself cannot be locked: nobody could list it. One lock for all folders costs a wait that nobody notices.
FolderLock::FolderLock(const std::filesystem::path& /*folder*/)
{
    HANDLE mutex = CreateMutexA(nullptr, FALSE, "lytdlg-folder");
    if (mutex == nullptr)
        return;
    WaitForSingleObject(mutex, INFINITE);
    const auto giveFree = [mutex](const void*)
    {
        ReleaseMutex(mutex);
        CloseHandle(mutex);
    };
    m_lock = {nullptr, giveFree};
}

} // namespace lytdlg
