// Files that are read and written whole, byte for byte.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// Nothing for a file that cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& name);

// Writes a file, over the one that is there, which may be a device. False when that fails.
bool WriteBytesTo(const std::filesystem::path& name, const std::string& content);

// Puts the content in a file's place in one step, so that at no time the file is half written. The file keeps its rights,
// and a link leads where it led. Throws std::runtime_error, with the file as it was, when it cannot be written.
void ReplaceWholeFile(const std::filesystem::path& name, const std::string& content);

// Writes a file that was not there, and its folder when that was not there either. Throws std::runtime_error, and leaves no
// file, when it cannot be written.
void WriteNewFile(const std::filesystem::path& name, const std::string& content);

// The files of a folder with an extension, in the order of their names. Case does not count, and a folder that is not there
// has none.
std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder, const std::string& extension);

// Whether the file bears the mark that it is not to be changed, whoever asks.
bool IsWriteProtected(const std::filesystem::path& name);

// A file that is gone with its owner.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::string& content);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& Name() const { return m_name; }

private:
    std::filesystem::path m_name;
};

} // namespace lytdlg
