// A file that nobody but the library opens; it is gone with its owner. Natively it is held in memory.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace lytdlg
{

class FileForLibrary
{
public:
    explicit FileForLibrary(const std::string& content);

    const std::filesystem::path& Name() const { return m_name; }

private:
    std::filesystem::path m_name;
    std::shared_ptr<const void> m_file; // keeps the file there
};

} // namespace lytdlg
