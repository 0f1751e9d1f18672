#include "lytdlg/text/Paths.h"

namespace lytdlg
{

std::vector<std::string> CommandLineWords(int count, char** words)
{
    return {words + 1, words + count};
}

// Natively the library passes a name on to the system as it is.
std::string NameForLibrary(const std::filesystem::path& path)
{
    return path.string();
}

} // namespace lytdlg
