#include "lytdlg/text/Paths.h"

#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/TextFile.h"
#include "native/MemoryFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace lytdlg
{

namespace
{

// Several files may be there at a time.
std::string NextName()
{
    static size_t count = 0;
    return std::string(platform::memoryFolder) + "/lytdlg/" + std::to_string(++count);
}

std::shared_ptr<const void> MemoryFile(const std::filesystem::path& name, const std::string& content)
{
    platform::PutMemoryFile(name.c_str(), content);
    return {nullptr, [name](const void*) { platform::RemoveMemoryFile(name.c_str()); }};
}

} // namespace

std::vector<std::string> CommandLineWords(int count, char** words)
{
    return {words + 1, words + count};
}

std::filesystem::path FileIn(const std::filesystem::path& folder, const std::string& name)
{
    for (const std::filesystem::path& file : FilesIn(folder, std::filesystem::path(name).extension().string()))
    {
        if (IsSameName(file.filename().string(), name))
            return file;
    }
    return {};
}

// Natively the library passes a name on to the system as it is.
std::string NameForLibrary(const std::filesystem::path& path)
{
    return path.string();
}

FileForLibrary::FileForLibrary(const std::string& content) : m_name(NextName()), m_file(MemoryFile(m_name, content)) {}

FolderForLibrary::FolderForLibrary() : m_name(NextName()) {}

void FolderForLibrary::Put(const std::filesystem::path& name, const std::string& content)
{
    m_files.push_back(MemoryFile(m_name / name, content));
}

FolderLock::FolderLock(const std::filesystem::path& folder)
{
    const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0)
        return;
    m_lock = {nullptr, [file](const void*) { close(file); }};
    static_cast<void>(flock(file, LOCK_EX));
}

} // namespace lytdlg
