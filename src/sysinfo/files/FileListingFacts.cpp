#include "sysinfo/files/FileListing.h"
#include "sysinfo/frame/FileSearch.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/Report.h"
#include "sysinfo/frame/ReportFrame.h"

namespace
{

constexpr int readAndWrite = 6;

std::tm CalendarTime(const SYSTEMTIME& time)
{
    std::tm calendar = {};
    calendar.tm_year = time.wYear - 1900;
    calendar.tm_mon = time.wMonth - 1;
    calendar.tm_mday = time.wDay;
    calendar.tm_hour = time.wHour;
    calendar.tm_min = time.wMinute;
    calendar.tm_sec = time.wSecond;
    calendar.tm_wday = time.wDayOfWeek;
    return calendar;
}

// The time is converted to local time twice, so it shows the zone's offset twice. Reports in use are compared with each
// other and have always shown that.
CString DateOf(const FILETIME& written)
{
    FILETIME local = {};
    SYSTEMTIME time = {};
    SYSTEMTIME shown = {};
    if (!FileTimeToLocalFileTime(&written, &local) || !FileTimeToSystemTime(&local, &time) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &time, &shown))
        shown = {};
    return FileDateText(CalendarTime(shown));
}

FileEntry EntryOf(const WIN32_FIND_DATAA& found)
{
    return {found.cFileName, found.dwFileAttributes == FILE_ATTRIBUTE_DIRECTORY, found.nFileSizeLow,
            DateOf(found.ftLastWriteTime)};
}

} // namespace

std::vector<FileEntry> ReadFileEntries(const CString& directory, const CString& mask)
{
    std::vector<FileEntry> entries;
    WIN32_FIND_DATAA found = {};
    const ClytSearchHandle search = lytFindFirst(directory + mask, found);
    if (!search.IsOpen())
        return entries;
    do
        entries.push_back(EntryOf(found));
    while (FindNextFileA(search.Get(), &found));
    return entries;
}

void lytListFiles(const CString& directory, const CString& mask, int recursive)
{
    const CString folder = directory.IsEmpty() ? directory : WithSeparator(directory);
    for (const FileEntry& entry : ReadFileEntries(folder, mask))
        if (std::optional<CString> line = FileLine(folder, mask, entry))
            AddReportLine(*std::move(line));

    if (recursive != 1)
        return;
    for (const FileEntry& entry : ReadFileEntries(folder, "*"))
        if (IsSubdirectory(entry))
            lytListFiles(folder + entry.name, mask, recursive);
}

void lytCheckDirectory(const CString& directory)
{
    if (const int error = lytAccessError(directory, readAndWrite); error != 0)
        if (std::optional<CString> line = DirectoryAccessLine(error, directory))
            AddReportLine(*std::move(line));
    lytListFiles(directory, "*.*", 0);
}
