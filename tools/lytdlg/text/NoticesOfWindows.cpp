#include "lytdlg/text/Watch.h"

#include <windows.h>

namespace lytdlg
{

struct FolderNotices::Handles
{
    std::vector<HANDLE> notices;

    Handles() = default;
    Handles(const Handles&) = delete;
    Handles& operator=(const Handles&) = delete;
    ~Handles()
    {
        for (HANDLE notice : notices)
            FindCloseChangeNotification(notice);
    }
};

FolderNotices::FolderNotices(const std::vector<std::filesystem::path>& folders) : m_handles(std::make_shared<Handles>())
{
    constexpr DWORD changes = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE;
    for (const std::filesystem::path& folder : folders)
    {
        HANDLE notice = FindFirstChangeNotificationW(folder.c_str(), FALSE, changes);
        if (notice == INVALID_HANDLE_VALUE)
            continue;
        if (m_handles->notices.size() < MAXIMUM_WAIT_OBJECTS)
            m_handles->notices.push_back(notice);
        else
            FindCloseChangeNotification(notice);
    }
}

void FolderNotices::Await(std::chrono::milliseconds most)
{
    const std::vector<HANDLE>& notices = m_handles->notices;
    if (notices.empty())
    {
        Sleep(static_cast<DWORD>(most.count()));
        return;
    }
    const DWORD heard = WaitForMultipleObjects(static_cast<DWORD>(notices.size()), notices.data(), FALSE,
                                               static_cast<DWORD>(most.count()));
    if (heard < WAIT_OBJECT_0 + notices.size())
        FindNextChangeNotification(notices[heard - WAIT_OBJECT_0]);
}

} // namespace lytdlg
