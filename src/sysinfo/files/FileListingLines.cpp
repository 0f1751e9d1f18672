#include "sysinfo/files/FileListing.h"

#include "environment/LocalTime.h"

#include <cerrno>

namespace
{

// The runtime formats no year after this one.
constexpr int lastYear = 9999 - 1900;

bool IsSelfOrParent(const CString& name)
{
    return name == "." || name == "..";
}

} // namespace

CString FileDateText(const std::tm& time)
{
    std::tm shown = time;
    if ((time.tm_year < 0 && !lytLocalTimeOf(0, shown)) || time.tm_year > lastYear)
        return "";
    char text[128] = "";
    const size_t length = std::strftime(text, sizeof text, "%c", &shown);
    return {text, static_cast<int>(length)};
}

std::optional<CString> FileLine(const CString& directory, const CString& mask, const FileEntry& entry)
{
    const bool isLeftOut = entry.isDirectory && mask.Find('.') >= 0;
    if (isLeftOut || IsSelfOrParent(entry.name))
        return {};
    CString line;
    if (entry.isDirectory)
        line.Format("  %s%s", directory.GetString(), entry.name.GetString());
    else
        line.Format("  %-30s Size: %10u Date: %s", (directory + entry.name).GetString(), entry.size,
                    entry.date.GetString());
    return line;
}

bool IsSubdirectory(const FileEntry& entry)
{
    return entry.isDirectory && !IsSelfOrParent(entry.name);
}

std::optional<CString> DirectoryAccessLine(int error, const CString& directory)
{
    switch (error)
    {
    case ENOENT: return "Directory '" + directory + "' does not exist!";
    case EACCES: return "Directory '" + directory + "' does not have read / write access!";
    default: return {};
    }
}
