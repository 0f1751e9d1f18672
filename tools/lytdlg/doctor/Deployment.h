// A deployment: the library, its configuration, its dialogs, and the program and the folders that it works among.
#pragma once

#include "lytdlg/Commands.h"
#include "lytdlg/doctor/Workstation.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// What a deployment has one of, and what else was found under its name.
struct Piece
{
    std::filesystem::path chosen; // empty when nothing was found
    std::vector<std::filesystem::path> others;
};

struct Deployment
{
    Piece library;       // lyt64.dll
    Piece configuration; // lyt.ini
    Piece dialogs;       // the folder of the descriptions
    // Every library in the folders of the deployment.
    std::vector<std::filesystem::path> libraries;
    std::vector<std::filesystem::path> hiddenEndings; // that would be found without the `.txt` at their ends
    std::vector<std::filesystem::path> tooLong;       // files and folders whose names the library cannot open
    std::vector<std::filesystem::path> checksums;     // files SHA256SUMS
    std::string document;                             // empty when none was named
    std::vector<std::string> defines;
    Host host;
    std::vector<SearchFolder> search; // in which the platform looks for partner libraries, in its order
};

// Looks in the folders that are the operands, and three folders deep below them; options name what is elsewhere, or which of
// several is meant. A UsageError for an operand that is not a folder.
Deployment FindDeployment(const Request& request);

// As a version record of the platform holds it, such as 1.2.0.0; empty for bytes without one.
std::string VersionOf(const std::string& bytes);
// The SHA-256 of the bytes, in small hexadecimal digits; empty when the system does not compute it.
std::string ChecksumOf(const std::string& bytes);
// The sum that the file SHA256SUMS of that folder has for a file.
std::optional<std::string> ListedChecksumOf(const std::filesystem::path& sums, const std::filesystem::path& file);

// As bytes; a source for each kind of system.
using Sha256 = std::array<unsigned char, 32>;
std::optional<Sha256> Sha256Of(const std::string& bytes);

} // namespace lytdlg
