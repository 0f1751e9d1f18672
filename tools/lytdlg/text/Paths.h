// Names of files, which the commands have in UTF-8 and the library in its code page.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace lytdlg
{

// The path of a name. The standard library would take it for one in another code page.
inline std::filesystem::path PathOf(const std::string& name)
{
    return std::u8string(name.begin(), name.end());
}

// The words of the command line after the program's name, given what `main` is given.
std::vector<std::string> CommandLineWords(int count, char** words);

// A file of a folder, by its name in UTF-8, or an empty path. Case does not count.
std::filesystem::path FileIn(const std::filesystem::path& folder, const std::string& name);

// The name as the library opens it. A UsageError when it holds a letter that the library's code page does not have.
std::string NameForLibrary(const std::filesystem::path& path);

// A file that nobody but the library opens; it is gone with its owner. Natively it is held in memory.
class FileForLibrary
{
public:
    explicit FileForLibrary(const std::string& content);

    const std::filesystem::path& Name() const { return m_name; }

private:
    std::filesystem::path m_name;
    std::shared_ptr<const void> m_file; // keeps the file there
};

// A folder of files that nobody but the library opens; it is gone with its owner. Natively it is held in memory.
class FolderForLibrary
{
public:
    FolderForLibrary();

    const std::filesystem::path& Name() const { return m_name; }
    // A name may lead into a folder in it.
    void Put(const std::filesystem::path& name, const std::string& content);

private:
    std::filesystem::path m_name;
    std::vector<std::shared_ptr<const void>> m_files; // keep the files there
};

// Keeps other runs of this program out of a folder; they wait. The system releases it when the process ends in any way.
class FolderLock
{
public:
    // Where the system has no such lock, as on some file servers, nobody waits.
    explicit FolderLock(const std::filesystem::path& folder);

private:
    std::shared_ptr<const void> m_lock;
};

// On Windows only: the path that a function of the system writes into a buffer of a size; empty when it fails.
std::filesystem::path AskedPath(const std::function<unsigned long(wchar_t*, unsigned long)>& ask);

} // namespace lytdlg
