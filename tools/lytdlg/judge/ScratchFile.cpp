#include "lytdlg/judge/ScratchFile.h"

#include <fstream>
#include <random>

namespace lytdlg
{

namespace
{

// Of this process alone.
const std::string& ProcessName()
{
    static const std::string name = "lytdlg-" + std::to_string(std::random_device{}());
    return name;
}

} // namespace

ScratchFile::ScratchFile(const std::string& bytes)
{
    static int count = 0;
    m_path = std::filesystem::temp_directory_path() / (ProcessName() + "-" + std::to_string(++count) + ".dlg");
    std::ofstream file(m_path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        throw std::filesystem::filesystem_error("a copy of the description cannot be written", m_path,
                                                std::error_code());
}

ScratchFile::~ScratchFile()
{
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
}

} // namespace lytdlg
