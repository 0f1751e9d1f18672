#include "lytdlg/text/Watch.h"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <thread>

namespace lytdlg
{

struct FolderNotices::Handles
{
    const int queue = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    bool isWatching = false;

    Handles() = default;
    Handles(const Handles&) = delete;
    Handles& operator=(const Handles&) = delete;
    ~Handles()
    {
        if (queue >= 0)
            close(queue);
    }
};

FolderNotices::FolderNotices(const std::vector<std::filesystem::path>& folders) : m_handles(std::make_shared<Handles>())
{
    constexpr uint32_t changes = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_CREATE | IN_DELETE | IN_MODIFY;
    for (const std::filesystem::path& folder : folders)
        m_handles->isWatching |= inotify_add_watch(m_handles->queue, folder.c_str(), changes) >= 0;
}

void FolderNotices::Await(std::chrono::milliseconds most)
{
    if (!m_handles->isWatching)
    {
        std::this_thread::sleep_for(most);
        return;
    }
    pollfd queue = {m_handles->queue, POLLIN, 0};
    if (poll(&queue, 1, static_cast<int>(most.count())) <= 0)
        return;
    char notices[4096];
    while (read(m_handles->queue, notices, sizeof notices) > 0)
    {
    }
}

} // namespace lytdlg
