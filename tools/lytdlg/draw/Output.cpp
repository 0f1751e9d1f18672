#include "lytdlg/draw/Output.h"

#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace lytdlg
{

std::string ExtensionOf(const std::string& file)
{
    std::string extension = PathOf(file).extension().string();
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
    if (!WriteBytesTo(PathOf(file), bytes))
        throw std::runtime_error("\"" + file + "\" cannot be written; make its folder first, or choose another");
}

} // namespace lytdlg
