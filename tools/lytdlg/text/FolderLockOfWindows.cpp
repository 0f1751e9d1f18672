#include "lytdlg/text/FolderLock.h"

#include <windows.h>

namespace lytdlg
{

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
