// Libraries for Windows cannot be loaded here.
#include "lytdlg/judge/LoadTrial.h"

namespace lytdlg
{

std::optional<unsigned long> LoadErrorOf(const std::filesystem::path& /*library*/,
                                         const LoadSurroundings& /*surroundings*/)
{
    return std::nullopt;
}

std::string ReasonOfLoadError(unsigned long error)
{
    return "error " + std::to_string(error);
}

std::vector<std::filesystem::path> PlatformFolders()
{
    return {};
}

int CarryOutLoadTrial(const std::vector<std::string>& /*words*/)
{
    return 0;
}

} // namespace lytdlg
