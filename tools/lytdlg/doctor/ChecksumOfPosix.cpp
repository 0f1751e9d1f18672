#include "lytdlg/doctor/Checksum.h"

#include <nettle/sha2.h>

namespace lytdlg
{

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
