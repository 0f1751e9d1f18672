#include "lytdlg/text/TextFile.h"

#include "lytdlg/text/Paths.h"

#include <afx.h>
#include <windows.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

// A name that no file in the folder has, and that no other process tries.
fs::path FreeName(const fs::path& folder, const std::string& stem)
{
    for (int number = 1;; ++number)
    {
        fs::path name =
            folder / PathOf(stem + "." + std::to_string(GetCurrentProcessId()) + "." + std::to_string(number) + ".tmp");
        std::error_code ignored;
        if (!fs::exists(fs::symlink_status(name, ignored)))
            return name;
    }
}

} // namespace

std::optional<std::string> ReadWholeFile(const fs::path& name)
{
    std::error_code ignored;
    std::ifstream file(name, std::ios::binary);
    if (!file || fs::is_directory(name, ignored))
        return std::nullopt;
    std::string content{std::istreambuf_iterator<char>(file), {}};
    return file.bad() ? std::nullopt : std::optional(std::move(content));
}

bool WriteBytesTo(const fs::path& name, const std::string& content)
{
    std::ofstream file(name, std::ios::binary);
    file << content;
    file.close();
    return !file.fail();
}

void ReplaceWholeFile(const fs::path& name, const std::string& content)
{
    std::error_code failure;
    const fs::path target = fs::canonical(name, failure);
    if (failure || IsWriteProtected(target))
        throw std::runtime_error(name.string() + " is write-protected; it stays as it was");
    const fs::path draft = FreeName(target.parent_path(), target.filename().string());
    if (WriteBytesTo(draft, content))
    {
        fs::permissions(draft, fs::status(target).permissions(), failure);
        fs::rename(draft, target, failure);
        if (!failure)
            return;
    }
    fs::remove(draft, failure);
    throw std::runtime_error("cannot write " + name.string() + "; it stays as it was. Check the rights of its folder");
}

void WriteNewFile(const fs::path& name, const std::string& content)
{
    std::error_code failure;
    fs::create_directories(name.parent_path(), failure);
    const bool isThere = fs::exists(fs::symlink_status(name, failure));
    if (!isThere && WriteBytesTo(name, content))
        return;
    if (!isThere)
        fs::remove(name, failure);
    throw std::runtime_error("cannot write " + name.string() + "; check the rights of its folder");
}

bool IsWriteProtected(const fs::path& name)
{
    std::error_code ignored;
    return (fs::status(name, ignored).permissions() & fs::perms::owner_write) == fs::perms::none;
}

std::vector<fs::path> FilesIn(const fs::path& folder, const std::string& extension)
{
    std::vector<fs::path> files;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
    {
        const std::string own = entry->path().extension().string();
        std::error_code ignored;
        if (CString(own.c_str()).CompareNoCase(extension.c_str()) == 0 && entry->is_regular_file(ignored))
            files.push_back(entry->path());
    }
    std::ranges::sort(files);
    return files;
}

TemporaryFile::TemporaryFile(const std::string& content) : m_name(FreeName(fs::temp_directory_path(), "lytdlg"))
{
    if (!WriteBytesTo(m_name, content))
        throw std::runtime_error("cannot write " + m_name.string() + "; check the folder for temporary files");
}

TemporaryFile::~TemporaryFile()
{
    std::error_code ignored;
    fs::remove(m_name, ignored);
}

} // namespace lytdlg
