#include "lytdlg/text/Paths.h"

#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/TextFile.h"

namespace lytdlg
{

std::vector<std::string> CommandLineWords(int count, char** words)
{
    return {words + 1, words + count};
}

std::filesystem::path FileIn(const std::filesystem::path& folder, const std::string& name)
{
    for (const std::filesystem::path& file : FilesIn(folder, std::filesystem::path(name).extension().string()))
    {
        if (IsSameName(file.filename().string(), name))
            return file;
    }
    return {};
}

// Natively the library passes a name on to the system as it is.
std::string NameForLibrary(const std::filesystem::path& path)
{
    return path.string();
}

} // namespace lytdlg
