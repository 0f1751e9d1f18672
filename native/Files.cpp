// Files and folders, which may be named with `\` between folders.
#include <windows.h>

#include "native/NativePath.h"

#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

// As much of the text as fits with its NUL; its length.
DWORD CopyText(const std::string& text, char* buffer, DWORD size)
{
    if (size == 0)
        return 0;
    const size_t length = text.copy(buffer, size - 1);
    buffer[length] = '\0';
    return static_cast<DWORD>(length);
}

} // namespace

// Every module is part of the program.
DWORD GetModuleFileNameA(HMODULE /*module*/, char* buffer, DWORD size)
{
    std::error_code failed;
    return CopyText(fs::read_symlink("/proc/self/exe", failed).string(), buffer, size);
}

DWORD GetCurrentDirectoryA(DWORD size, char* buffer)
{
    std::error_code failed;
    return CopyText(fs::current_path(failed).string(), buffer, size);
}

DWORD GetTempPathA(DWORD size, char* buffer)
{
    std::error_code failed;
    return CopyText((fs::temp_directory_path(failed) / "").string(), buffer, size);
}

DWORD GetCurrentProcessId()
{
    return static_cast<DWORD>(getpid());
}

BOOL CreateDirectoryA(LPCSTR folder, const void* /*security*/)
{
    std::error_code failed;
    return fs::create_directory(NativePath(folder), failed) ? TRUE : FALSE;
}

BOOL RemoveDirectoryA(LPCSTR folder)
{
    std::error_code failed;
    return fs::remove(NativePath(folder), failed) ? TRUE : FALSE;
}

BOOL CopyFileA(LPCSTR from, LPCSTR to, BOOL keepExisting)
{
    std::error_code failed;
    const fs::copy_options options =
        keepExisting != FALSE ? fs::copy_options::none : fs::copy_options::overwrite_existing;
    return fs::copy_file(NativePath(from), NativePath(to), options, failed) ? TRUE : FALSE;
}

BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD /*flags*/)
{
    std::error_code failed;
    fs::rename(NativePath(from), NativePath(to), failed);
    return failed ? FALSE : TRUE;
}

BOOL DeleteFileA(LPCSTR file)
{
    std::error_code failed;
    return fs::remove(NativePath(file), failed) ? TRUE : FALSE;
}
