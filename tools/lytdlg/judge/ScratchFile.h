// A text as a file of its own, gone with it: the library reads its descriptions from files only.
#pragma once

#include <filesystem>
#include <string>

namespace lytdlg
{

class ScratchFile
{
public:
    // Raises a filesystem error where no file can be written.
    explicit ScratchFile(const std::string& bytes);
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    ~ScratchFile();

    std::string Path() const { return m_path.string(); }
    std::string Folder() const { return m_path.parent_path().string(); }

private:
    std::filesystem::path m_path;
};

} // namespace lytdlg
