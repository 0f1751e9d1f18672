#include "lytdlg/text/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace lytdlg
{

FolderLock::FolderLock(const std::filesystem::path& folder)
{
    const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0)
        return;
    m_lock = {nullptr, [file](const void*) { close(file); }};
    static_cast<void>(flock(file, LOCK_EX));
}

} // namespace lytdlg
