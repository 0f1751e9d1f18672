#include "lytdlg/doctor/Checksum.h"

#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <cstdio>
#include <sstream>

namespace lytdlg
{

std::string VersionOf(const std::string& bytes)
{
    // The fixed part of the record begins so; the two halves of the file's version follow, the lower number first.
    const std::string start("\xBD\x04\xEF\xFE\0\0\x01\0", 8);
    const size_t place = bytes.find(start) + start.size();
    if (place < start.size() || place + 8 > bytes.size())
        return "";
    std::string version;
    for (const size_t number : {2U, 0U, 6U, 4U})
    {
        const auto low = static_cast<unsigned char>(bytes[place + number]);
        const auto high = static_cast<unsigned char>(bytes[place + number + 1]);
        version += (version.empty() ? "" : ".") + std::to_string(low + high * 256);
    }
    return version;
}

std::string ChecksumOf(const std::string& bytes)
{
    const std::optional<Sha256> sum = Sha256Of(bytes);
    std::string digits;
    for (const unsigned char byte : sum.value_or(Sha256()))
    {
        std::array<char, 3> two = {};
        std::snprintf(two.data(), two.size(), "%02x", byte);
        digits += two.data();
    }
    return sum ? digits : "";
}

std::optional<std::string> ListedChecksumOf(const std::filesystem::path& sums, const std::filesystem::path& file)
{
    std::istringstream lines(ReadWholeFile(sums).value_or(""));
    std::string sum;
    std::string name;
    std::error_code ignored;
    while (lines >> sum && std::getline(lines >> std::ws, name))
    {
        // A star before the name says that the file was read as bytes.
        name = name.substr(name.find_first_not_of('*'), name.find_last_not_of('\r') - name.find_first_not_of('*') + 1);
        if (std::filesystem::equivalent(sums.parent_path() / PathOf(name), file, ignored))
            return sum;
    }
    return std::nullopt;
}

} // namespace lytdlg
