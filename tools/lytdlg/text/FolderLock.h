// Keeps other runs of this program out of a folder; they wait. The system gives it free when the process ends in any way.
#pragma once

#include <filesystem>
#include <memory>

namespace lytdlg
{

class FolderLock
{
public:
    // Where the system has no such lock, as on some file servers, nobody waits.
    explicit FolderLock(const std::filesystem::path& folder);

private:
    std::shared_ptr<const void> m_lock;
};

} // namespace lytdlg
