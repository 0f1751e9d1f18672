// The exports that give language texts and values of `lyt.ini`, and write the log.
#include "lyt64.h"

#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "environment/LogFile.h"
#include "environment/ProcessState.h"
#include "exports/ExportFrame.h"

#include <cstring>
#include <utility>

namespace
{

// Copies a text out and returns 1 unless the buffer then holds the sentinel of the language texts.
int CopyUnlessSentinel(char* buffer, int size, const char* text)
{
    CopyText(buffer, size, text);
    return std::strcmp(buffer, lytNoValue) != 0 ? 1 : 0;
}

// The value of `lyt.ini` that a text of the form `section/key` names; `slash` is the place of its first "/".
CString IniValueOf(const CString& path, int slash)
{
    return lytEnvironment.GetIniValue(path.Left(slash), path.Mid(slash + 1));
}

// Takes the item up to the first comma, or the whole list, off the unread rest.
CString TakeListItem()
{
    const int comma = lytIniList.Find(',');
    if (comma < 0)
        return std::exchange(lytIniList, CString());
    CString item = lytIniList.Left(comma);
    lytIniList = lytIniList.Mid(comma + 1);
    return item;
}

// Also writes a NUL one byte beyond the stated size, where callers leave room for it.
void CopyListItem(char* buffer, int size, const char* item)
{
    CopyText(buffer, size, item);
    buffer[size] = '\0';
}

} // namespace

int __stdcall lytGetTextForKey(const char* section, const char* key, const char* argument, char* buffer, int size)
{
    LYT_QUIET_FRAME(0);
    if (!IsUsable(buffer, size))
        return 0;
    return CopyUnlessSentinel(buffer, size, lytEnvironment.GetText(CString(section), CString(key), argument));
}

// The one export without the frame: it needs neither the module's resources nor the companion library. Its message box
// takes cursor and focus like any other, so it keeps the host's itself.
int __stdcall lytGetTextFromIniFile(const char* path, char* buffer, int size)
{
    LYT_REFUSE_OTHER_THREADS(0);
    if (!IsUsable(buffer, size))
        return 0;
    const CString name = path;
    const int slash = name.Find('/');
    if (slash < 0)
    {
        const HostState host;
        lytReport(lytError("SlashMissing"));
        return 0;
    }
    // The text for a missing key is not the sentinel, so it counts as found.
    return CopyUnlessSentinel(buffer, size, IniValueOf(name, slash));
}

int __stdcall lytListFromIniStart(const char* path)
{
    LYT_QUIET_FRAME(0);
    const CString name = path;
    const int slash = name.Find('/');
    lytIniList.Empty();
    if (slash >= 0)
        lytIniList = IniValueOf(name, slash);
    return lytIniList.IsEmpty() ? 0 : 1;
}

int __stdcall lytListFromIniNext(char* value, int valueSize, char* display, int displaySize)
{
    LYT_QUIET_FRAME(0);
    if (!IsUsable(value, valueSize) || !IsUsable(display, displaySize) || lytIniList.IsEmpty())
        return 0;
    const CString item = TakeListItem();
    CopyListItem(value, valueSize, item);
    CopyListItem(display, displaySize, item);
    return 1;
}

void __stdcall lytWriteToLogFile(const char* text, int level)
{
    LYT_QUIET_FRAME();
    lytWriteToLog(text != nullptr ? text : "", level);
}
