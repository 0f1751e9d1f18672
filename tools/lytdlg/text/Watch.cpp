#include "lytdlg/text/Watch.h"

#include "lytdlg/text/DescriptionPaths.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

const std::vector<std::string> watchedExtensions = {".dlg", ".nls", ".case", ".script", ".ini", ".txt"};
// How long nothing may change before a change counts as whole, and how long a notice may be missed.
constexpr std::chrono::milliseconds quietTime(100);
constexpr std::chrono::milliseconds longestWait(1000);

fs::path FolderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : ".";
}

} // namespace

const commandline::OptionForm watchOption = {"--watch", nullptr, false,
                                             "repeat whenever a file of the folder changes, until Ctrl-C"};

Watch::Watch(const std::vector<std::string>& operands)
{
    std::error_code ignored;
    for (const std::string& operand : operands)
    {
        const fs::path path = PathOf(operand);
        if (fs::is_directory(path, ignored))
            m_deepFolders.push_back(path);
        else
            m_folders.insert(m_folders.end(), {FolderOf(path), FolderOf(path) / "lang"});
    }
    m_seen = Look();
}

void Watch::AwaitChange()
{
    FolderNotices notices(FoldersOfAll());
    State present = Look();
    for (; present == m_seen; present = Look())
        notices.Await(longestWait);
    do
    {
        m_seen = std::move(present);
        FolderNotices(FoldersOfAll()).Await(quietTime);
        present = Look();
    } while (present != m_seen);
}

Watch::State Watch::Look() const
{
    std::vector<fs::path> files;
    for (const fs::path& folder : m_deepFolders)
        std::ranges::move(FilesBelow(folder, watchedExtensions), std::back_inserter(files));
    for (const fs::path& folder : m_folders)
    {
        for (const std::string& extension : watchedExtensions)
            std::ranges::move(FilesIn(folder, extension), std::back_inserter(files));
    }
    State state;
    std::error_code ignored;
    for (const fs::path& file : files)
        state[file] = {fs::last_write_time(file, ignored), fs::file_size(file, ignored)};
    return state;
}

std::vector<fs::path> Watch::FoldersOfAll() const
{
    std::vector<fs::path> folders = m_deepFolders;
    std::ranges::copy(m_folders, std::back_inserter(folders));
    for (const auto& [file, state] : m_seen)
        folders.push_back(FolderOf(file));
    std::ranges::sort(folders);
    folders.erase(std::unique(folders.begin(), folders.end()), folders.end());
    return folders;
}

ExitCode DoWatching(const Request& request, ExitCode (*act)(const Request& request))
{
    if (!request.Has(watchOption.word))
        return act(request);
    if (std::ranges::find(request.operands, standardInput) != request.operands.end())
        throw commandline::UsageError("the standard input cannot be watched; name files or their folder");
    Watch watch(request.operands);
    act(request);
    for (;;)
    {
        std::printf("watching; Ctrl-C ends\n");
        std::fflush(stdout);
        watch.AwaitChange();
        try
        {
            act(request);
        }
        // The file may be whole again after the next change.
        catch (const std::runtime_error& failure)
        {
            TellError(failure.what());
        }
    }
}

} // namespace lytdlg
