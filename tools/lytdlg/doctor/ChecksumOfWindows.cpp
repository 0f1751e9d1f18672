#include "lytdlg/doctor/Checksum.h"

#include <windows.h>

#include <bcrypt.h>

namespace lytdlg
{

std::optional<Sha256> Sha256Of(const std::string& bytes)
{
    Sha256 sum = {};
    std::string kept = bytes;
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    BCRYPT_HASH_HANDLE hash = nullptr;
    bool isDone = BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) >= 0;
    isDone = isDone && BCryptCreateHash(algorithm, &hash, nullptr, 0, nullptr, 0, 0) >= 0;
    isDone =
        isDone && BCryptHashData(hash, reinterpret_cast<PUCHAR>(kept.data()), static_cast<ULONG>(kept.size()), 0) >= 0;
    isDone = isDone && BCryptFinishHash(hash, sum.data(), static_cast<ULONG>(sum.size()), 0) >= 0;
    if (hash != nullptr)
        BCryptDestroyHash(hash);
    if (algorithm != nullptr)
        BCryptCloseAlgorithmProvider(algorithm, 0);
    return isDone ? std::optional(sum) : std::nullopt;
}

} // namespace lytdlg
