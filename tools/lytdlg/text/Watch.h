// Repeats something whenever its files have changed.
#pragma once

#include "lytdlg/Commands.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace lytdlg
{

// What the system reports of folders. Where it reports nothing, the time passes.
class FolderNotices
{
public:
    explicit FolderNotices(const std::vector<std::filesystem::path>& folders);
    // Returns when something may have changed in the folders, or after the time.
    void Await(std::chrono::milliseconds most);

private:
    struct Handles;
    std::shared_ptr<Handles> m_handles;
};

// Descriptions, their texts, cases and scripts: of a folder and below, or beside a file.
class Watch
{
public:
    explicit Watch(const std::vector<std::string>& operands);
    // Returns when one of the files has changed since the last time, and none is being written.
    void AwaitChange();

private:
    using State = std::map<std::filesystem::path, std::pair<std::filesystem::file_time_type, std::uintmax_t>>;
    State Look() const;
    std::vector<std::filesystem::path> FoldersOfAll() const;

    std::vector<std::filesystem::path> m_deepFolders; // with all that is below
    std::vector<std::filesystem::path> m_folders;
    State m_seen;
};

// The option of a command that can be repeated, and what it does then. It ends when it is interrupted.
extern const commandline::OptionForm watchOption;
ExitCode DoWatching(const Request& request, ExitCode (*act)(const Request& request));

} // namespace lytdlg
