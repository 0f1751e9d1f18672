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

FileForLibrary::FileForLibrary(const std::string& content)
    : m_name(NextName()), m_file(nullptr, [name = m_name](const void*) { platform::RemoveMemoryFile(name.c_str()); })
{
    platform::PutMemoryFile(m_name.c_str(), content);
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
