#include "lytdlg/draw/ScratchFile.h"

#include "commandline/OwnedFile.h"

#include <windows.h>

#include <filesystem>

namespace lytdlg
{

namespace fs = std::filesystem;

ScratchFile::ScratchFile(const std::string& extension)
    : m_name((fs::temp_directory_path() / ("lytdlg-" + std::to_string(GetCurrentProcessId()) + extension)).string())
{
}

ScratchFile::~ScratchFile()
{
    std::error_code ignored;
    fs::remove(m_name, ignored);
}

std::string ScratchFile::Read() const
{
    std::string bytes;
    const commandline::OwnedFile file(std::fopen(m_name.c_str(), "rb"));
    char buffer[4096];
    for (size_t count = 1; file != nullptr && count > 0;)
    {
        count = std::fread(buffer, 1, sizeof buffer, file.get());
        bytes.append(buffer, count);
    }
    return bytes;
}

} // namespace lytdlg
