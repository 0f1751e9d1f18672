// The files of one directory that a mask names, and on request of the directories below; and whether the directory
// can be used at all.
#pragma once

#include <afx.h>

#include <ctime>
#include <optional>
#include <vector>

struct FileEntry
{
    CString name;
    bool isDirectory = false; // with no other attribute: an entry with more than this one counts as a file
    unsigned size = 0;        // its low 32 bits
    CString date;
};

// In the order of the platform. `directory` ends in `\` unless it is empty.
std::vector<FileEntry> ReadFileEntries(const CString& directory, const CString& mask);

// The date of the last write, as the C runtime words it. A year before 1900 shows the time value 0.
CString FileDateText(const std::tm& time);

// Nothing for an entry that is not shown: the directory itself and the one above and, when the mask holds a dot, all
// directories.
std::optional<CString> FileLine(const CString& directory, const CString& mask, const FileEntry& entry);
// True for a directory whose own files a recursive listing shows.
bool IsSubdirectory(const FileEntry& entry);

// What keeps a directory from being read and written; `error` is an `errno` value. Nothing for any other value.
std::optional<CString> DirectoryAccessLine(int error, const CString& directory);
