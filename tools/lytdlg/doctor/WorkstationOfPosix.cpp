#include "lytdlg/doctor/Workstation.h"

#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/TextFile.h"

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

std::filesystem::path FileIn(const std::filesystem::path& folder, const std::string& name)
{
    for (const std::filesystem::path& file : FilesIn(folder, std::filesystem::path(name).extension().string()))
    {
        if (IsSameName(file.filename().string(), name))
            return file;
    }
    return {};
}

void JudgeLoading(const Deployment& /*deployment*/, const Configuration& /*configuration*/, Diagnosis& diagnosis)
{
    diagnosis.Add(Verdict::Note, "loading", {}, "judged on Windows only, with the screen and the common controls");
}

void JudgeScreen(const Deployment& /*deployment*/, Diagnosis& /*diagnosis*/) {}

} // namespace lytdlg
