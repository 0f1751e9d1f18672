// What tells one version of a file from another.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// As a version record of the platform holds it, such as 1.2.0.0; empty for bytes without one.
std::string VersionOf(const std::string& bytes);
// The SHA-256 of the bytes, in small hexadecimal digits; empty when the system does not compute it.
std::string ChecksumOf(const std::string& bytes);
// The sum that the file SHA256SUMS of that folder has for a file; nothing when there is none.
std::optional<std::string> ListedChecksumOf(const std::filesystem::path& sums, const std::filesystem::path& file);

// As bytes; a source for each kind of system.
using Sha256 = std::array<unsigned char, 32>;
std::optional<Sha256> Sha256Of(const std::string& bytes);

} // namespace lytdlg
