#include "lytdlg/text/TextFile.h"

#include <afx.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace lytdlg
{

namespace fs = std::filesystem;

std::optional<std::string> ReadWholeFile(const fs::path& name)
{
    std::error_code ignored;
    std::ifstream file(name, std::ios::binary);
    if (!file || fs::is_directory(name, ignored))
        return std::nullopt;
    std::string content{std::istreambuf_iterator<char>(file), {}};
    return file.bad() ? std::nullopt : std::optional(std::move(content));
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

} // namespace lytdlg
