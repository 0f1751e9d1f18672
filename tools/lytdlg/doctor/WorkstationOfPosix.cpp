#include "lytdlg/doctor/Workstation.h"

namespace lytdlg
{

Host HostOfWorkstation()
{
    return {};
}

std::vector<SearchFolder> SystemSearchFolders()
{
    return {};
}

bool IsLocked(const std::filesystem::path& /*file*/)
{
    return false;
}

std::filesystem::path RegisteredConfigurationFolder()
{
    return {};
}

std::optional<bool> HasFont(const std::string& /*name*/)
{
    return std::nullopt;
}

void JudgeLoading(const Deployment& /*deployment*/, const Configuration& /*configuration*/, Diagnosis& diagnosis)
{
    diagnosis.Add(Verdict::Note, "loading", {}, "judged on Windows only, with the screen and the common controls");
}

void JudgeScreen(const Deployment& /*deployment*/, Diagnosis& /*diagnosis*/) {}

} // namespace lytdlg
