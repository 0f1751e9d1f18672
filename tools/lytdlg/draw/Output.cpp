#include "lytdlg/draw/Output.h"

#include "commandline/OwnedFile.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <stdexcept>

namespace lytdlg
{

std::string ExtensionOf(const std::string& file)
{
    std::string extension = std::filesystem::path(file).extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    return extension;
}

void WriteOut(const std::string& file, const std::string& bytes)
{
    if (file.empty())
    {
        std::fwrite(bytes.data(), 1, bytes.size(), stdout);
        return;
    }
    const commandline::OwnedFile target(std::fopen(file.c_str(), "wb"));
    if (target == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), target.get()) != bytes.size() ||
        std::fflush(target.get()) != 0)
        throw std::runtime_error("\"" + file + "\" cannot be written; make its folder first, or choose another");
}

} // namespace lytdlg
