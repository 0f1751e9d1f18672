#include "lytdlg/doctor/Workstation.h"

#include "lytdlg/doctor/Deployment.h"

#include <nettle/sha2.h>

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

std::optional<Sha256> Sha256Of(const std::string& bytes)
{
    Sha256 sum = {};
    sha256_ctx context;
    sha256_init(&context);
    sha256_update(&context, bytes.size(), reinterpret_cast<const uint8_t*>(bytes.data()));
    sha256_digest(&context, sum.size(), sum.data());
    return sum;
}

} // namespace lytdlg
