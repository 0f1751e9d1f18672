#include "commandline/WholeFile.h"

#include <windows.h>

#include <sys/stat.h>

namespace commandline
{

namespace
{

// Some systems call a device a file.
constexpr size_t largestFile = size_t{64} << 20U;

bool IsFileOrNothing(const std::string& name)
{
    struct stat found = {};
    return stat(name.c_str(), &found) != 0 || S_ISREG(found.st_mode);
}

bool WriteDraft(const std::string& name, const std::string& content)
{
    OwnedFile file(std::fopen(name.c_str(), "wb"));
    return file != nullptr && std::fwrite(content.data(), 1, content.size(), file.get()) == content.size() &&
           std::fclose(file.release()) == 0;
}

} // namespace

std::optional<std::string> ReadWholeFile(const std::string& name)
{
    const OwnedFile file(IsFileOrNothing(name) ? std::fopen(name.c_str(), "rb") : nullptr);
    if (file == nullptr)
        return std::nullopt;
    std::string content;
    char block[8192];
    for (size_t count = 1; count != 0 && content.size() <= largestFile; content.append(block, count))
        count = std::fread(block, 1, sizeof block, file.get());
    return std::ferror(file.get()) == 0 && content.size() <= largestFile ? std::optional(std::move(content))
                                                                         : std::nullopt;
}

bool WriteWholeFile(const std::string& name, const std::string& content)
{
    const std::string draft = name + "." + std::to_string(GetCurrentProcessId()) + ".tmp";
    if (IsFileOrNothing(name) && WriteDraft(draft, content) &&
        MoveFileExA(draft.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE)
        return true;
    DeleteFileA(draft.c_str());
    return false;
}

} // namespace commandline
