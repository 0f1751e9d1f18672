// Files that are read and written whole, byte for byte, and what commands write to the standard output.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace lytdlg
{

// Nothing for a file that cannot be read. A device or a pipe is not a file: it may have no end.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& name);
// The same, although an editor holds another text for it.
std::optional<std::string> ReadSavedFile(const std::filesystem::path& name);

// Every file is written beside its place and put there in one step, so that at no time it is half written. A file that is
// replaced keeps its rights, and a link leads where it led. What cannot be written throws std::runtime_error, with all as it
// was.

// Over the file that is there, if any.
void WriteWholeFile(const std::filesystem::path& name, const std::string& content);

// Over the file that still holds what it held before.
void ReplaceWholeFile(const std::filesystem::path& name, const std::string& before, const std::string& content);

// Where no file is; makes its folder as well.
void WriteNewFile(const std::filesystem::path& name, const std::string& content);

// Why a file cannot be written, and what to do.
std::string FailureToWrite(const std::filesystem::path& name, const std::error_code& reason);

// The files of a folder with an extension, in the order of their names. Case does not count, and a folder that is not there
// has none.
std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder, const std::string& extension);
// The files of a folder and of all folders in it with one of the extensions. Folders whose names begin with a point are left
// out.
std::vector<std::filesystem::path> FilesBelow(const std::filesystem::path& folder,
                                              const std::vector<std::string>& extensions);

// Whether the file is marked as write-protected for everybody.
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

// The extension of a file name in lower case, with its point.
std::string ExtensionOf(const std::string& file);
// Writes to standard output for an empty name. Throws std::runtime_error when the file cannot be written.
void WriteOut(const std::string& file, const std::string& bytes);
// Has another program make the file of a source: its words are -o, the file to write and the file to read. Throws
// std::runtime_error with a hint when there is no such program.
void WriteByProgram(const std::string& file, std::vector<std::string> words, const std::string& source,
                    const char* wayOut);

// In the order in which it is written.
using Json = nlohmann::ordered_json;
// Texts are in UTF-8; other bytes, which a path may contain, are replaced. Without an indent it is one line.
std::string TextOf(const Json& json, int indent = -1);
// To standard output.
void PrintJson(const Json& json);

} // namespace lytdlg
